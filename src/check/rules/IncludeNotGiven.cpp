#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

struct Include {
  std::size_t file;
  Stretch name;
};

/// Where no included file is given, nobody meant to check a whole mod.
void FindIncludesNotGiven(const Mod& mod, Findings& findings) {
  std::vector<Include> missing;
  bool anyGiven = false;
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& include : file.Statements(language::Keyword::kInclude)) {
      if (mod.Gives(file.WordText(include, 0))) {
        anyGiven = true;
      } else {
        missing.push_back({i, file.Word(include, 0)});
      }
    }
  }
  if (!anyGiven) return;
  for (const Include& include : missing) {
    findings.push_back({.file = include.file,
                        .range = include.name.AsRange(),
                        .text = Quoted(mod.Files()[include.file].Text(include.name)) +
                                " is not among the files: names are not looked for"});
  }
}

}  // namespace

const Rule kIncludeNotGiven = {
    .id = "include-not-given",
    .severity = Severity::kNote,
    .summary = "some of the included files are not checked",
    .explanation =
        "Names can be looked for only where all included files are given. A file is "
        "given where one of that name is, whatever its folder and its case.",
    .good = "==> DEFS.CON <==\ndefine BLOOD 1620\n==> GAME.CON <==\ninclude DEFS.CON\n",
    .bad =
        "==> DEFS.CON <==\ndefine BLOOD 1620\n"
        "==> GAME.CON <==\ninclude DEFS.CON\ninclude USER.CON\n",
    .find = FindIncludesNotGiven};

}  // namespace tessel::check
