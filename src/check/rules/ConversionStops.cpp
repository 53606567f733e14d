#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "text/TextSearch.h"

namespace tessel::check {
namespace {

constexpr std::string_view kListBegin = "gamestartup", kListEnd = "FREEZERHURTOWNER";

/// What the conversion needs of the start-up list and does not find; empty: it finds all.
std::string_view LackingInList(std::string_view text) {
  const Position begin = FindText(text, kListBegin, 0, std::ssize(text), kFindWholeWord);
  if (begin == kNotFound) return kListBegin;
  const bool ends = FindText(text, kListEnd, begin, std::ssize(text), kFindWholeWord) != kNotFound;
  return ends ? std::string_view() : kListEnd;
}

void FindConversionStops(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    const auto& levels = file.Statements(language::Keyword::kDefineLevelName);
    if (levels.empty() || IsNewerDialect(file)) continue;
    const std::string_view lacking = LackingInList(file.Text());
    if (lacking.empty()) continue;
    findings.push_back(
        {.file = i,
         .range = levels.front().range.AsRange(),
         .text = "a conversion would stop: the start-up parameters lack " + Quoted(lacking)});
  }
}

}  // namespace

const Rule kConversionStops = {
    .id = "conversion-stops",
    .severity = Severity::kNote,
    .summary = "a conversion to 1.4/1.5 would stop",
    .explanation =
        "A user file of the older dialect is converted only where it has a start-up "
        "list, from \"gamestartup\" to FREEZERHURTOWNER, which is replaced.",
    .good = "gamestartup FREEZERHURTOWNER\ndefinelevelname 0 0 E1L1.map 02:10 01:05 ONE\n",
    .bad = "definelevelname 0 0 E1L1.map 02:10 01:05 ONE\n",
    .find = FindConversionStops};

}  // namespace tessel::check
