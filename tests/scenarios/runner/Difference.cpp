#include "Difference.h"

#include <algorithm>

#include "Actual.h"
#include "Match.h"

namespace scenario {
namespace {

bool SaysWhetherDone(const Expectations& expected) {
  return std::ranges::any_of(expected.All(), [](const Json& one) { return one.contains("ok"); });
}

void Append(std::vector<std::string>& lines, const Json& object) {
  for (std::string& line : LinesOf(object)) lines.push_back(std::move(line));
}

bool Holds(const std::vector<std::string>& lines, const std::string& line) {
  return std::ranges::find(lines, line) != lines.end();
}

std::string Row(const char* sign, const std::string& line) {
  return "\n  " + std::string(sign) + " " + line;
}

}  // namespace

Difference Compare(const Expectations& expected, const Json& reply) {
  Difference difference;
  if (!SaysWhetherDone(expected) && !(reply.is_object() && reply.value("ok", false))) {
    difference.where = "refused";
    for (const Json& one : expected.All()) Append(difference.wanted, one);
    Append(difference.came, ActualOf({{"ok", true}, {"error", ""}}, reply));
    return difference;
  }
  for (const Json& one : expected.All()) {
    Append(difference.wanted, one);
    Append(difference.came, ActualOf(one, reply));
    if (difference.where.empty()) difference.where = Mismatch(one, reply);
  }
  return difference;
}

std::string Shown(const Difference& difference) {
  std::string text;
  for (const std::string& line : difference.wanted) {
    text += Row(Holds(difference.came, line) ? " " : "-", line);
  }
  for (const std::string& line : difference.came) {
    if (!Holds(difference.wanted, line)) text += Row("+", line);
  }
  return text;
}

}  // namespace scenario
