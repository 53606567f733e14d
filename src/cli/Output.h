// Where a command's result goes.
#pragma once

#include <string>
#include <string_view>

namespace tessel::cli {

/// "-o FILE", "--in-place", or neither: standard output.
struct Destination {
  std::string file;
  bool inPlace = false;
  bool force = false;  ///< "-o" may replace a file
};

/// Writes a result byte for byte. `source` is the file it was made from. False when that failed;
/// the user has been told, and the file is as it was. (Failures of standard output are told once,
/// when the program ends.)
bool WriteResult(std::string_view bytes, const Destination& destination, const std::string& source);

}  // namespace tessel::cli
