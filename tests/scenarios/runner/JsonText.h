// JSON values as they stand in a line.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace scenario {

/// Members keep the order in which they were written.
using Json = nlohmann::ordered_json;

/// The value in one line; characters that cannot be seen are escaped.
std::string TextOf(const Json& value);

/// Whether both say the same, whatever the order of their members.
bool SameValue(const Json& one, const Json& other);

}  // namespace scenario
