// The files of a program that shows them.
#pragma once

#include "posix/PosixFiles.h"
#include "qt/base/LongestText.h"

namespace tessel {

/// Bytes of a line: the editor widget lays out lines of this length, and ends the program at one of
/// eight times as much.
inline constexpr std::size_t kLongestShownLine = std::size_t{256} << 20;

/// True when no line, without its break (CR, LF or both), is longer than that.
bool LinesAreUpTo(std::string_view bytes, std::size_t longest);

class QtFiles : public PosixFiles {
 public:
  /// A text that is longer than the editor can show, or has such a line, is a RuntimeError.
  std::string Read(const std::string& path) override;
};

}  // namespace tessel
