#include "Actual.h"

#include <algorithm>
#include <cstddef>

#include "Match.h"

namespace scenario {
namespace {

Json ActualMembers(const Json& expected, const Json& actual) {
  Json members = Json::object();
  for (const auto& [name, value] : expected.items()) {
    if (const auto it = actual.find(name); it != actual.end()) members[name] = ActualOf(value, *it);
  }
  return members;
}

/// An event is of a kind; other objects of a list are all about the same.
bool IsLike(const Json& one, const Json& other) {
  return one.is_object() && other.is_object() &&
         (!one.contains("event") || one["event"] == other.value("event", Json()));
}

/// What is expected of the element at this place, or of another one like it; nothing if there is
/// none.
const Json* ExpectedLike(const Json& expected, const Json& actual, std::size_t at) {
  if (expected.size() == actual.size() && IsLike(expected[at], actual[at])) return &expected[at];
  const auto it =
      std::ranges::find_if(expected, [&](const Json& one) { return IsLike(one, actual[at]); });
  return it == expected.end() ? nullptr : &*it;
}

Json ActualElements(const Json& expected, const Json& actual) {
  Json elements = Json::array();
  for (std::size_t i = 0; i < actual.size(); ++i) {
    const Json* const one = ExpectedLike(expected, actual, i);
    elements.push_back(one == nullptr ? actual[i] : ActualOf(*one, actual[i]));
  }
  return elements;
}

}  // namespace

Json ActualOf(const Json& expected, const Json& actual) {
  if (Mismatch(expected, actual).empty()) return expected;
  if (expected.is_object() && actual.is_object()) return ActualMembers(expected, actual);
  if (expected.is_array() && actual.is_array()) return ActualElements(expected, actual);
  return actual;
}

}  // namespace scenario
