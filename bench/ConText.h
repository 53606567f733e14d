// CON text to measure with.
#pragma once

#include <cstddef>
#include <string>

namespace tessel::bench {

/// A user file of about `bytes` bytes: definitions, quotes, levels, music and sounds with their
/// comments, in the proportions of a real one. It can be converted. The same for every call.
const std::string& UserFile(std::size_t bytes);

/// A script of about `bytes` bytes: actors, states and actions with their comments.
const std::string& GameFile(std::size_t bytes);

}  // namespace tessel::bench
