#include "qt/services/QtFiles.h"

#include "base/RuntimeError.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"

namespace tessel {
namespace {

[[noreturn]] void Refuse(const std::string& path, const char* what) {
  throw RuntimeError("Cannot open " + path + ": it has " + what +
                     ", which the editor cannot show.");
}

bool IsTooLong(const std::string& path) {
  const auto status = posix::StatusOf(posix::ResolveIgnoringCase(path));
  return status && S_ISREG(status->st_mode) &&
         static_cast<std::size_t>(status->st_size) > kLongestShownText;
}

}  // namespace

bool LinesAreUpTo(std::string_view bytes, std::size_t longest) {
  while (bytes.size() > longest) {
    const std::size_t end = bytes.substr(0, longest + 1).find_last_of("\r\n");
    if (end == bytes.npos) return false;
    bytes.remove_prefix(end + 1);
  }
  return true;
}

std::string QtFiles::Read(const std::string& path) {
  if (IsTooLong(path)) Refuse(path, "more than 512 MiB");
  std::string bytes = PosixFiles::Read(path);
  if (bytes.size() > kLongestShownText) Refuse(path, "more than 512 MiB");  // it has grown
  if (!LinesAreUpTo(bytes, kLongestShownLine)) Refuse(path, "a line of more than 256 MiB");
  return bytes;
}

}  // namespace tessel
