#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "text/TextSearch.h"

namespace tessel::check {
namespace {

/// What the panel finds first for an item, up to the end of the item's define line.
Position PanelHit(const FileFacts& file, const PanelItem& item, const Statement& define) {
  return FindText(file.Text(), item.Key(), 0, define.range.end,
                  item.wholeWord ? kFindWholeWord : kFindDefault);
}

/// Between the keyword and the comment behind the value.
bool HasTab(const FileFacts& file, const Statement& define) {
  const std::string_view behind = file.Text().substr(define.range.end);
  const std::string_view blanks = behind.substr(0, behind.find_first_not_of(" \t"));
  return file.Text(define.range).find('\t') != std::string_view::npos ||
         blanks.find('\t') != std::string_view::npos;
}

void AddElsewhere(const Mod& mod, std::size_t index, const PanelItem& item, const Statement& define,
                  Findings& findings) {
  const FileFacts& file = mod.Files()[index];
  const Position hit = PanelHit(file, item, define);
  const Stretch name = file.Word(define, 0);
  if (hit == kNotFound) {
    findings.push_back({.file = index,
                        .range = name.AsRange(),
                        .text = "the settings panel does not find " + item.name +
                                " here: it looks for " + Quoted(item.Key())});
  } else if (hit < define.range.begin) {
    findings.push_back({.file = index,
                        .range = {hit, hit + std::ssize(item.Key())},
                        .text = "the settings panel takes this for " + item.name +
                                ", which is defined in " +
                                mod.PlaceText(index, define.range.begin, index)});
  } else if (HasTab(file, define)) {
    findings.push_back(
        {.file = index,
         .range = define.range.AsRange(),
         .text = "the settings panel takes the tab for a part of the value of " + item.name});
  }
}

void FindElsewhere(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    if (!mod.IsForPanel(i)) continue;
    const auto& defines = mod.PanelDefines(i);
    for (std::size_t k = 0; k < defines.size(); ++k) {
      if (defines[k] != nullptr) {
        AddElsewhere(mod, i, AllPanelItems()[k], *defines[k], findings);
      }
    }
  }
}

}  // namespace

const Rule kPanelElsewhere = {
    .id = "panel-elsewhere",
    .severity = Severity::kWarning,
    .summary = "the settings panel takes something else for a value",
    .explanation =
        "The settings panel looks for a name from the start of the file, also in "
        "comments, and takes what it finds first. Of weapons it looks for \"define\", "
        "one blank and the name. The value is the last word in front of a comment, and "
        "blanks alone set words apart.",
    .good = "define MAXPLAYERHEALTH 100 // MAXPLAYERHEALTH is the most\n",
    .bad = "// MAXPLAYERHEALTH is the most\ndefine MAXPLAYERHEALTH 100\n",
    .find = FindElsewhere};

}  // namespace tessel::check
