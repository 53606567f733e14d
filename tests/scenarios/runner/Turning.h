// Scenarios from one form to the other.
#pragma once

#include <string>

namespace scenario {

/// The scenario with its lines of the protocol, "> {...}" and "< {...}", in words. What has no
/// words stays.
std::string InWords(const std::string& scenario);

/// The same the other way round: nothing but lines of the protocol.
std::string InJson(const std::string& scenario);

}  // namespace scenario
