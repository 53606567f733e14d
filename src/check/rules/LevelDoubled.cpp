#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

std::optional<std::int64_t> LevelKey(const FileFacts& file, const Statement& level) {
  const auto episode = CountingNumber(file.WordText(level, 0));
  const auto number = CountingNumber(file.WordText(level, 1));
  if (!episode || !number) return std::nullopt;
  constexpr std::int64_t kNumbers = std::int64_t{1} << 32U;
  return *episode * kNumbers + *number;
}

}  // namespace

const Rule kLevelDoubled = {.id = "level-doubled",
                            .severity = Severity::kError,
                            .summary = "a level has two lines",
                            .explanation = "Each episode has each level once.",
                            .good =
                                "definelevelname 0 0 E1L1.map 02:10 01:05 ONE\n"
                                "definelevelname 0 1 E1L2.map 02:10 01:05 TWO\n",
                            .bad =
                                "definelevelname 0 0 E1L1.map 02:10 01:05 ONE\n"
                                "definelevelname 0 0 E1L2.map 02:10 01:05 TWO\n",
                            .find = [](const Mod& mod, Findings& findings) {
                              FindDoubledNumbers(mod, language::Keyword::kDefineLevelName, LevelKey,
                                                 "level", 2, findings);
                            }};

}  // namespace tessel::check
