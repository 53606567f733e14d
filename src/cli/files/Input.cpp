#include "cli/files/Input.h"

#include "base/RuntimeError.h"
#include "cli/files/Streams.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"

namespace tessel::cli {
namespace {

void RefuseToChoose(const std::string& name) {
  const std::vector<std::string> choice = posix::ChoiceIgnoringCase(name);
  if (choice.size() == 1) return;
  throw RuntimeError("Cannot open " + name + ": it may be " + choice[0] + " or " + choice[1] +
                     "; name the one that you mean.");
}

}  // namespace

std::string ReadInput(const std::string& name) {
  if (IsStream(name)) return ReadStream(name);
  RefuseToChoose(name);
  const auto status = posix::StatusOf(posix::ResolveIgnoringCase(name));
  if (status && S_ISREG(status->st_mode) &&
      static_cast<std::size_t>(status->st_size) > kMostBytes) {
    throw RuntimeError("Cannot open " + name + ": it has more than 1 GiB.");
  }
  return PosixFiles().Read(name);
}

}  // namespace tessel::cli
