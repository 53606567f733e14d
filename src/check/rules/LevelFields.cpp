#include <array>

#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr std::array<const char*, 6> kLevelFieldNames = {"episode",  "level",       "map file",
                                                         "par time", "record time", "title"};

/// What is wrong with the line, or nothing.
std::string FieldProblem(const FileFacts& file, const Statement& level) {
  if (level.words < kLevelFieldNames.size()) {
    return std::string("this level line has no ") + kLevelFieldNames[level.words];
  }
  for (std::size_t k = 0; k < 2; ++k) {
    if (!CountingNumber(file.WordText(level, k))) {
      return std::string("the ") + kLevelFieldNames[k] + " " + Quoted(file.WordText(level, k)) +
             " is not a number from 0 up";
    }
  }
  return {};
}

void FindLevelFields(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& level : file.Statements(language::Keyword::kDefineLevelName)) {
      std::string problem = FieldProblem(file, level);
      if (problem.empty()) continue;
      findings.push_back({.file = i, .range = level.range.AsRange(), .text = std::move(problem)});
    }
  }
}

}  // namespace

const Rule kLevelFields = {
    .id = "level-fields",
    .severity = Severity::kError,
    .summary = "a level line lacks something",
    .explanation =
        "A level line is the keyword, episode, level, map file, par time, record time "
        "and title. Episode and level are numbers from 0 up.",
    .good = "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\n",
    .bad = "definelevelname 0 7 E1L8.map 05:00 03:00\n",
    .find = FindLevelFields};

}  // namespace tessel::check
