#include <algorithm>

#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr std::size_t kFields = 6;

/// The first stretch between keyword and title that is not one blank.
std::optional<language::Range> WrongGap(const FileFacts& file, const Statement& level) {
  const std::size_t keyword = language::GrammarOf(language::Keyword::kDefineLevelName).word.size();
  Position end = level.range.begin + static_cast<Position>(keyword);
  for (std::size_t k = 0; k < std::min<std::size_t>(kFields, level.words); ++k) {
    const Stretch word = file.Word(level, k);
    const language::Range gap = {end, word.begin};
    if (language::Slice(file.Text(), gap) != " ") return gap;
    end = word.end;
  }
  return std::nullopt;
}

void FindLevelBlanks(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& level : file.Statements(language::Keyword::kDefineLevelName)) {
      const auto gap = WrongGap(file, level);
      if (!gap) continue;
      findings.push_back({.file = i,
                          .range = *gap,
                          .text = "the levels page wants one blank here",
                          .fix = Fix{"write one blank", {{*gap, " "}}}});
    }
  }
}

}  // namespace

const Rule kLevelBlanks = {
    .id = "level-blanks",
    .severity = Severity::kWarning,
    .summary = "a level line is not set apart by single blanks",
    .explanation =
        "The levels page counts blanks to find episode, level and map file: one stands "
        "between the parts of the line.",
    .good = "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\n",
    .bad = "definelevelname 0  7 E1L8.map 05:00 03:00 FIRST STEPS\n",
    .find = FindLevelBlanks};

}  // namespace tessel::check
