// A page of values: what is to stand in other files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/values/FileValues.h"

namespace tessel::cli {

/// A value, in single-byte text.
struct PageValue {
  ValueName name;
  std::string text;
};

/// Reads a page: TOML, or a JSON report of "settings", "get", "levels" or "diff". Rows without a
/// (new) value are passed over. What is neither is a RuntimeError that begins with the name of the
/// page.
std::vector<PageValue> ParsePage(std::string_view text, const std::string& name);

/// The page as TOML, which ParsePage reads back.
std::string PageAsToml(const std::vector<PageValue>& values);

}  // namespace tessel::cli
