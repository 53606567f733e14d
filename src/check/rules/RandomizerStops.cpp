#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "text/Text.h"

namespace tessel::check {
namespace {

void FindRandomizerStops(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    if (!mod.IsForPanel(i)) continue;
    const FileFacts& file = mod.Files()[i];
    const auto& defines = mod.PanelDefines(i);
    for (std::size_t k = 0; k < defines.size(); ++k) {
      const PanelItem& item = AllPanelItems()[k];
      if (defines[k] == nullptr || defines[k]->words < 2 || !TakesNumber(item)) continue;
      const std::string_view value = file.WordText(*defines[k], 1);
      if (!NumericPrefix(value).empty()) continue;
      findings.push_back({.file = i,
                          .range = file.Word(*defines[k], 1).AsRange(),
                          .text = "the randomizer would stop at " + item.name + ": " +
                                  Quoted(value) + " does not begin with a number"});
    }
  }
}

}  // namespace

const Rule kRandomizerStops = {
    .id = "randomizer-stops",
    .severity = Severity::kNote,
    .summary = "the randomizer would stop at a value",
    .explanation =
        "Where it leaves values beyond its bounds alone, the randomizer compares them, "
        "and stops at the first that does not begin with a number. What stands in "
        "front of it has new values then.",
    .good = "define MAXPLAYERHEALTH 100\n",
    .bad = "define MAXPLAYERHEALTH full\n",
    .find = FindRandomizerStops};

}  // namespace tessel::check
