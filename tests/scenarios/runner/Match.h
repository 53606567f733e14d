// Does a reply hold what a scenario expects?
#pragma once

#include <string>

#include "JsonText.h"

namespace scenario {

/// Every named member must be there and match, others may be there too; lists match element by
/// element and in length, where "..." stands for any number of elements, or for none; everything
/// else must be equal. The text "~" matches any value, "~abc" any text that contains "abc", and
/// "~~abc" stands for the text "~abc".
///
/// Returns the empty text, or where and how they differ.
std::string Mismatch(const Json& expected, const Json& actual, const std::string& where = {});

}  // namespace scenario
