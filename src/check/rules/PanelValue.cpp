#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "language/Definitions.h"

namespace tessel::check {
namespace {

/// What the value is not, or null.
const char* WrongKindOf(const PanelItem& item, std::string_view value) {
  if (TakesNumber(item)) {
    return language::NumberOf(value) ? nullptr : "a whole number from -2147483648 to 2147483647";
  }
  return value == "YES" || value == "NO" ? nullptr : "YES or NO";
}

void FindPanelValues(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    if (!mod.IsForPanel(i)) continue;
    const FileFacts& file = mod.Files()[i];
    const auto& defines = mod.PanelDefines(i);
    for (std::size_t k = 0; k < defines.size(); ++k) {
      if (defines[k] == nullptr || defines[k]->words < 2) continue;
      const PanelItem& item = AllPanelItems()[k];
      const char* kind = WrongKindOf(item, file.WordText(*defines[k], 1));
      if (kind == nullptr) continue;
      findings.push_back({.file = i,
                          .range = file.Word(*defines[k], 1).AsRange(),
                          .text = Quoted(file.WordText(*defines[k], 1)) + " is not " + kind +
                                  ", which the settings panel wants for " + item.name});
    }
  }
}

}  // namespace

const Rule kPanelValue = {
    .id = "panel-value",
    .severity = Severity::kWarning,
    .summary = "a value is not what the settings panel wants",
    .explanation =
        "The items of the settings panel are whole numbers that fit 32 bits, and two of "
        "them YES or NO, in capitals.",
    .good = "define MAXPLAYERHEALTH 100\ndefine CAMERASDESTRUCTABLE NO\n",
    .bad = "define MAXPLAYERHEALTH full\ndefine CAMERASDESTRUCTABLE 0\n",
    .find = FindPanelValues};

}  // namespace tessel::check
