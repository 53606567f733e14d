// Where a command's text comes from.
#pragma once

#include <string>

namespace tessel::cli {

/// The bytes of a file, or of a stream (see Streams.h). A file's name is found without regard to
/// case; one that may be either of two is refused. More than kMostBytes, and whatever cannot be
/// read, is a RuntimeError that says the name as it was given.
std::string ReadInput(const std::string& name);

}  // namespace tessel::cli
