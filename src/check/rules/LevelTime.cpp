#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr std::size_t kFirstTime = 3;

/// Odd characters in the place of digits are taken: the game's own files have some.
bool IsTime(std::string_view word) {
  return word.size() == 5 && word.find(':') == 2 && word.rfind(':') == 2;
}

void FindLevelTimes(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& level : file.Statements(language::Keyword::kDefineLevelName)) {
      for (std::size_t k = kFirstTime; k < kFirstTime + 2 && k < level.words; ++k) {
        const std::string_view time = file.WordText(level, k);
        if (IsTime(time)) continue;
        findings.push_back({.file = i,
                            .range = file.Word(level, k).AsRange(),
                            .text = "the time " + Quoted(time) + " is not written mm:ss"});
      }
    }
  }
}

}  // namespace

const Rule kLevelTime = {
    .id = "level-time",
    .severity = Severity::kWarning,
    .summary = "a time of a level is not written mm:ss",
    .explanation =
        "Par and record time are two characters, a colon and two characters. The levels "
        "page finds the title by the two colons.",
    .good = "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\n",
    .bad = "definelevelname 0 7 E1L8.map 5:00 03:00 FIRST STEPS\n",
    .find = FindLevelTimes};

}  // namespace tessel::check
