#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr Position kWordLength = 5;  // of "state"

Position ColumnOf(const FileFacts& file, Position offset) {
  return offset - LineAround(file.Text(), offset).begin;
}

/// Inside of a state "state" runs another one. Of a name that is none it is the next state, where
/// it stands as far to the left as the one that it would be in.
void FindStatesInStates(const Mod& mod, Findings& findings) {
  if (!mod.IsWhole()) return;
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    std::optional<Position> told;
    for (const StateUse& use : file.StateUses()) {
      const Position opener = use.opener;
      if (told == opener || mod.HasState(file.Text(use.name)) ||
          ColumnOf(file, use.keyword) != ColumnOf(file, opener)) {
        continue;
      }
      told = opener;
      findings.push_back({.file = i,
                          .range = {opener, opener + kWordLength},
                          .text = "this state is not closed by \"ends\" in front of " +
                                  mod.PlaceText(i, use.keyword, i)});
    }
  }
}

void FindOpenStates(const Mod& mod, Findings& findings) {
  FindOpenBlocks(mod, {language::Keyword::kState}, "this state is not closed by \"ends\"",
                 findings);
  FindStatesInStates(mod, findings);
}

}  // namespace

const Rule kOpenState = {
    .id = "open-state",
    .severity = Severity::kError,
    .summary = "a state has no \"ends\"",
    .explanation =
        "A state goes from \"state\" to \"ends\". No actor stands in it. Where all files "
        "of a mod are checked, a state that is defined nowhere and begins as far to the "
        "left as the one before it shows as well that \"ends\" is missing.",
    .good = "state bleed\n  ifrnd 128\n    spawn BLOOD\nends\n\nactor TROOPER 30\nenda\n",
    .bad = "state bleed\n  ifrnd 128\n    spawn BLOOD\n\nactor TROOPER 30\nenda\n",
    .find = FindOpenStates};

}  // namespace tessel::check
