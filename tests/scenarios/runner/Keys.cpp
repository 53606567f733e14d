#include "Keys.h"

#include <algorithm>
#include <array>

namespace scenario {
namespace {

struct Named {
  std::string_view name;
  int number;
};

constexpr std::array kHeld = {Named{"Ctrl+", 2}, Named{"Shift+", 1}, Named{"Alt+", 4}};
constexpr std::array kNames = {
    Named{"Tab", 9},     Named{"Return", 13}, Named{"Escape", 27}, Named{"Insert", 45},
    Named{"Delete", 46}, Named{"F1", 112},    Named{"F2", 113},    Named{"F3", 114},
    Named{"F4", 115},    Named{"F5", 116},    Named{"F6", 117},    Named{"F7", 118},
    Named{"F8", 119},    Named{"F9", 120},    Named{"F10", 121},   Named{"F11", 122},
    Named{"F12", 123},
};

bool IsItsOwnCode(int code) { return (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'); }

std::optional<int> CodeOf(std::string_view name) {
  if (name.size() == 1 && IsItsOwnCode(name.front())) return name.front();
  const auto* const it = std::ranges::find(kNames, name, &Named::name);
  return it == kNames.end() ? std::nullopt : std::optional(it->number);
}

std::optional<std::string> NameOfCode(int code) {
  if (IsItsOwnCode(code)) return std::string(1, static_cast<char>(code));
  const auto* const it = std::ranges::find(kNames, code, &Named::number);
  return it == kNames.end() ? std::nullopt : std::optional(std::string(it->name));
}

}  // namespace

std::optional<std::string> NameOf(const Keys& keys) {
  if (keys.shift < 0 || keys.shift > 7) return std::nullopt;
  const auto last = NameOfCode(keys.code);
  if (!last) return std::nullopt;
  std::string name;
  for (const Named& held : kHeld) {
    if ((keys.shift & held.number) != 0) name += held.name;
  }
  return name + *last;
}

std::optional<Keys> KeysOf(std::string_view name) {
  Keys keys;
  for (const Named& held : kHeld) {
    if (!name.starts_with(held.name)) continue;
    keys.shift |= held.number;
    name.remove_prefix(held.name.size());
  }
  const auto code = CodeOf(name);
  if (!code) return std::nullopt;
  keys.code = *code;
  return keys;
}

}  // namespace scenario
