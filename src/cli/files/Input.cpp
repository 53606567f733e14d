#include "cli/files/Input.h"

#include "base/RuntimeError.h"
#include "cli/files/Streams.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"

namespace tessel::cli {

std::string ReadInput(const std::string& name) {
  if (IsStream(name)) return ReadStream(name);
  const auto status = posix::StatusOf(posix::ResolveIgnoringCase(name));
  if (status && S_ISREG(status->st_mode) &&
      static_cast<std::size_t>(status->st_size) > kMostBytes) {
    throw RuntimeError("Cannot open " + name + ": it has more than 1 GiB.");
  }
  return PosixFiles().Read(name);
}

}  // namespace tessel::cli
