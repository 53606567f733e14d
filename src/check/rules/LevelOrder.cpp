#include <utility>

#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

using LevelNumbers = std::pair<std::int32_t, std::int32_t>;

std::optional<LevelNumbers> NumbersOf(const FileFacts& file, const Statement& level) {
  const auto episode = CountingNumber(file.WordText(level, 0));
  const auto number = CountingNumber(file.WordText(level, 1));
  if (!episode || !number) return std::nullopt;
  return LevelNumbers{*episode, *number};
}

void FindLevelOrder(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    std::optional<LevelNumbers> before;
    for (const Statement& level : file.Statements(language::Keyword::kDefineLevelName)) {
      const auto numbers = NumbersOf(file, level);
      if (!numbers) continue;
      if (before && *numbers < *before) {
        findings.push_back({.file = i,
                            .range = level.range.AsRange(),
                            .text = "level " + std::to_string(numbers->first) + " " +
                                    std::to_string(numbers->second) + " stands behind level " +
                                    std::to_string(before->first) + " " +
                                    std::to_string(before->second)});
      }
      before = numbers;
    }
  }
}

}  // namespace

const Rule kLevelOrder = {
    .id = "level-order",
    .severity = Severity::kWarning,
    .summary = "levels are out of their order",
    .explanation =
        "Level lines stand in the order of their episodes and levels. The levels page "
        "looks for \"0 1\" and takes a line of \"0 10\" that stands in front of it.",
    .good =
        "definelevelname 0 1 E1L2.map 02:10 01:05 TWO\n"
        "definelevelname 0 10 E1L11.map 02:10 01:05 ELEVEN\n",
    .bad =
        "definelevelname 0 10 E1L11.map 02:10 01:05 ELEVEN\n"
        "definelevelname 0 1 E1L2.map 02:10 01:05 TWO\n",
    .find = FindLevelOrder};

}  // namespace tessel::check
