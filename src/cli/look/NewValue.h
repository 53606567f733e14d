// Whether an item can have a value.
#pragma once

#include <string>
#include <string_view>

#include "cli/files/Splices.h"
#include "cli/look/ValueLook.h"

namespace tessel::cli {

/// The value as the file is to have it in the place of the old one. A RuntimeError when the item
/// cannot have it.
std::string CheckedValue(const WantedItem& item, std::string_view old, const std::string& value);

/// A RuntimeError when the value would run into the comment behind it.
void RefuseToRunIntoTheRest(const std::string& bytes, const Splice& splice, const WantedItem& item);

}  // namespace tessel::cli
