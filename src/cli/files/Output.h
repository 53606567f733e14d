// Where a command's result goes.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessel::cli {

/// "-o FILE", "--in-place", or neither: standard output.
struct Destination {
  std::string file;  ///< may be a stream (see Streams.h)
  bool inPlace = false;
  bool force = false;                 ///< "-o" and "--backup" may replace a file
  bool dryRun = false;                ///< nothing is written, the difference is shown
  std::optional<std::string> backup;  ///< what a backup's name has behind the file's

  /// Is standard output free for something else?
  bool LeavesStandardOutput() const { return inPlace || dryRun || (!file.empty() && file != "-"); }
};

/// A RuntimeError where the backup of one of the files would take the place of another of them.
void RefuseToReplaceByBackups(const std::vector<std::string>& files,
                              const Destination& destination);

/// The file that a result was made from.
struct Source {
  std::string name;                 ///< empty where there is none
  std::optional<struct stat> read;  ///< the file when it was read, where it is to be written over
};

/// Writes a result byte for byte. A source that has changed since it was read is not written over.
/// What cannot be written is a RuntimeError, and the file is as it was. (Failures of standard
/// output are told when the program ends.)
void WriteResult(std::string_view bytes, const Destination& destination, const Source& source);

}  // namespace tessel::cli
