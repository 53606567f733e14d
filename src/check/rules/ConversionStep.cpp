#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "converter/VersionEdits.h"
#include "text/TextSearch.h"

namespace tessel::check {
namespace {

using language::Keyword;

bool IsThere(std::string_view text, std::string_view sought) {
  return FindText(text, sought, 0, std::ssize(text), kFindWholeWord) != kNotFound;
}

// A text that the template itself lacks is not missed: the two lines of step 32 stand apart there.
void FindMissedSteps(const Mod& mod, std::size_t index, Findings& findings) {
  const FileFacts& file = mod.Files()[index];
  const std::string_view unchanged = mod.Known().olderTemplate;
  const language::Range list = file.Statements(Keyword::kGameStartup).front().range.AsRange();
  int step = 0;
  for (const VersionEdit& edit : VersionEdits()) {
    if (edit.step == step) continue;  // the further edits of a step
    step = edit.step;
    if (IsThere(file.Text(), edit.sought) || !IsThere(unchanged, edit.sought)) continue;
    findings.push_back(
        {.file = index,
         .range = {list.begin,
                   list.begin + std::ssize(language::GrammarOf(Keyword::kGameStartup).word)},
         .text = "step " + std::to_string(step) + " of a conversion would not find " +
                 Quoted(edit.sought)});
  }
}

void FindConversionSteps(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    if (!IsUserFile(file) || file.Statements(Keyword::kDefineLevelName).empty() ||
        IsNewerDialect(file)) {
      continue;
    }
    FindMissedSteps(mod, i, findings);
  }
}

}  // namespace

const Rule kConversionStep = {
    .id = "conversion-step",
    .severity = Severity::kNote,
    .summary = "a step of the conversion to 1.4/1.5 would find nothing",
    .explanation =
        "The conversion looks for certain lines of a user file of the older dialect and "
        "passes over the steps whose line is not there. The file stays good; what "
        "the step adds has to be added by hand.",
    .good = "// no levels: this is no file to convert\ngamestartup FREEZERHURTOWNER\n",
    .bad = "gamestartup FREEZERHURTOWNER\ndefinelevelname 0 0 E1L1.map 02:10 01:05 ONE\n",
    .find = FindConversionSteps};

}  // namespace tessel::check
