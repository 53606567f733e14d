// JSON whose strings carry bytes.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace tessel::drive {

/// Members keep the order in which they were written.
using Json = nlohmann::ordered_json;

/// The JSON string in which the code points U+0000 to U+00FF stand for the bytes 0 to 255.
Json FromBytes(std::string_view bytes);
Json FromBytes(const std::vector<std::string>& texts);

/// A length or position in twips; a whole number is written as one.
Json FromTwips(double twips);

/// The bytes of such a JSON string. A Refusal that names `what` when the value is no string or
/// holds a code point above U+00FF.
std::string ToBytes(const Json& value, std::string_view what);

/// The object that stands on one line of input. A Refusal when it is none.
Json ParseCommand(const std::string& line);

}  // namespace tessel::drive
