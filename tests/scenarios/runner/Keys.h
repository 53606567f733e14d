// Keys by their names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace scenario {

/// A key of the protocol: its code, and what is held: 1 Shift, 2 Ctrl, 4 Alt.
struct Keys {
  int code = 0;
  int shift = 0;
};

/// Such as "F3" or "Ctrl+Shift+F"; nothing for a key without a name.
std::optional<std::string> NameOf(const Keys& keys);
std::optional<Keys> KeysOf(std::string_view name);

}  // namespace scenario
