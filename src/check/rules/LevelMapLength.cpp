#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr std::size_t kMap = 2;
// As the user templates of the two dialects say.
constexpr std::size_t kMostOlder = 13, kMostNewer = 128;

void FindLongMaps(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    const auto& levels = file.Statements(language::Keyword::kDefineLevelName);
    if (levels.empty()) continue;
    const std::size_t most = IsNewerDialect(file) ? kMostNewer : kMostOlder;
    for (const Statement& level : levels) {
      const std::string_view map = file.WordText(level, kMap);
      if (map.size() <= most) continue;
      findings.push_back({.file = i,
                          .range = file.Word(level, kMap).AsRange(),
                          .text = "the name of the map file has " + std::to_string(map.size()) +
                                  " characters; at most " + std::to_string(most) + " are allowed"});
    }
  }
}

}  // namespace

const Rule kLevelMapLength = {
    .id = "level-map-length",
    .severity = Severity::kWarning,
    .summary = "the name of a map file is too long",
    .explanation =
        "Names of level files have at most 13 characters, in the newer dialect (a file "
        "with QSIZE) at most 128.",
    .good = "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\n",
    .bad = "definelevelname 0 7 THEFIRSTSTEPS.map 05:00 03:00 FIRST STEPS\n",
    .find = FindLongMaps};

}  // namespace tessel::check
