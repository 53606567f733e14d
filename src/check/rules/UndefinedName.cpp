#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindUndefinedNames(const Mod& mod, Findings& findings) {
  if (!mod.IsWhole()) return;
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Stretch use : file.Uses()) {
      const std::string_view name = file.Text(use);
      if (mod.Defines(name) || mod.Commands().Find(name) != nullptr) continue;
      findings.push_back({.file = i,
                          .range = use.AsRange(),
                          .text = Quoted(name) + " is defined in none of these files"});
    }
  }
}

}  // namespace

const Rule kUndefinedName = {
    .id = "undefined-name",
    .severity = Severity::kError,
    .summary = "a name is defined in none of the files",
    .explanation =
        "The files that are given together are one mod. Names are looked for where all "
        "files that they include are among them, as when user, defs and game file are "
        "checked together.",
    .good =
        "==> DEFS.CON <==\ndefine BLOOD 1620\n"
        "==> GAME.CON <==\ninclude DEFS.CON\nstate bleed\n  spawn BLOOD\nends\n",
    .bad =
        "==> DEFS.CON <==\ndefine BLOOD 1620\n"
        "==> GAME.CON <==\ninclude DEFS.CON\nstate bleed\n  spawn BLOD\nends\n",
    .find = FindUndefinedNames};

}  // namespace tessel::check
