#include "qt/services/QtFiles.h"

#include "base/RuntimeError.h"

namespace tessel {

bool LinesAreUpTo(std::string_view bytes, std::size_t longest) {
  while (bytes.size() > longest) {
    const std::size_t end = bytes.substr(0, longest + 1).find_last_of("\r\n");
    if (end == bytes.npos) return false;
    bytes.remove_prefix(end + 1);
  }
  return true;
}

std::string QtFiles::Read(const std::string& path) {
  std::string bytes = PosixFiles::Read(path);
  if (LinesAreUpTo(bytes, kLongestShownLine)) return bytes;
  throw RuntimeError("Cannot open " + path +
                     ": it has a line of more than 256 MiB, which the editor cannot show.");
}

}  // namespace tessel
