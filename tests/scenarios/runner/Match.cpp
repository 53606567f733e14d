#include "Match.h"

#include <algorithm>
#include <span>

namespace scenario {
namespace {

std::string Differs(const Json& expected, const Json& actual, const std::string& where) {
  return (where.empty() ? "reply" : where) + ": expected " + expected.dump() + ", got " +
         actual.dump();
}

bool TextMatches(const std::string& expected, const Json& actual) {
  if (expected == "~") return true;
  if (!actual.is_string()) return false;
  const auto& text = actual.get_ref<const std::string&>();
  if (expected.starts_with("~~")) return text == expected.substr(1);
  if (expected.starts_with('~')) return text.find(expected.substr(1)) != std::string::npos;
  return text == expected;
}

std::string MembersMismatch(const Json& expected, const Json& actual, const std::string& where) {
  if (!actual.is_object()) return Differs(expected, actual, where);
  for (const auto& [name, value] : expected.items()) {
    const std::string place = where.empty() ? name : where + "." + name;
    const auto it = actual.find(name);
    if (it == actual.end()) return place + ": expected " + value.dump() + ", got nothing";
    if (auto difference = Mismatch(value, *it, place); !difference.empty()) return difference;
  }
  return {};
}

bool IsGap(const Json& expected) { return expected == "..."; }

using Elements = std::span<const Json>;

bool ElementsMatch(Elements expected, Elements actual) {
  if (expected.empty()) return actual.empty();
  const bool gap = IsGap(expected.front());
  if (gap && ElementsMatch(expected.subspan(1), actual)) return true;
  if (actual.empty()) return false;
  if (gap) return ElementsMatch(expected, actual.subspan(1));
  return Mismatch(expected.front(), actual.front()).empty() &&
         ElementsMatch(expected.subspan(1), actual.subspan(1));
}

Elements ElementsOf(const Json& list) { return list.get_ref<const Json::array_t&>(); }

std::string ElementsMismatch(const Json& expected, const Json& actual, const std::string& where) {
  if (!actual.is_array()) return Differs(expected, actual, where);
  if (std::ranges::any_of(expected, IsGap)) {
    const bool matches = ElementsMatch(ElementsOf(expected), ElementsOf(actual));
    return matches ? std::string() : Differs(expected, actual, where);
  }
  if (actual.size() != expected.size()) return Differs(expected, actual, where);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::string place = where + "[" + std::to_string(i) + "]";
    if (auto difference = Mismatch(expected[i], actual[i], place); !difference.empty()) {
      return difference;
    }
  }
  return {};
}

}  // namespace

std::string Mismatch(const Json& expected, const Json& actual, const std::string& where) {
  if (expected.is_object()) return MembersMismatch(expected, actual, where);
  if (expected.is_array()) return ElementsMismatch(expected, actual, where);
  const bool equal =
      expected.is_string() ? TextMatches(expected.get<std::string>(), actual) : expected == actual;
  return equal ? std::string() : Differs(expected, actual, where);
}

}  // namespace scenario
