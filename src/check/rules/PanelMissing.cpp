#include <algorithm>

#include "check/facts/PanelDefines.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

using language::Keyword;

bool IsDefinedAnywhere(const Mod& mod, std::size_t item) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    if (mod.PanelDefines(i)[item] != nullptr) return true;
  }
  return false;
}

/// The template's line for the item, behind the line of this file that stands in front of it in
/// the template.
std::optional<Fix> TemplateLine(const Mod& mod, std::size_t index, const FileFacts& model,
                                std::size_t item) {
  const FileFacts& file = mod.Files()[index];
  const Statement* const wanted = PanelDefinesOf(model)[item];
  if (wanted == nullptr) return std::nullopt;
  const Statement* before = nullptr;
  for (const Statement& define : model.Statements(Keyword::kDefine)) {
    if (define.range == wanted->range) break;
    const auto here = mod.DefineOf(model.WordText(define, 0));
    if (here && here->file == index) before = here->statement;
  }
  if (before == nullptr) return std::nullopt;
  const std::string_view text = file.Text();
  const Position at = LineAround(text, before->range.end).end;
  const std::string_view lineBreak = language::Slice(text, {at, std::max(at, NextLine(text, at))});
  const std::string line(
      language::Slice(model.Text(), LineAround(model.Text(), wanted->range.begin)));
  const std::string apart = lineBreak.empty() ? "\r\n" : std::string(lineBreak);
  return Fix{"insert the line of the template", {{{at, at}, apart + line}}};
}

void FindMissingIn(const Mod& mod, std::size_t index, Findings& findings) {
  const FileFacts& file = mod.Files()[index];
  const bool newer = IsNewerDialect(file);
  const std::string_view modelText = newer ? mod.Known().newerTemplate : mod.Known().olderTemplate;
  const FileFacts model({"", modelText}, CommandTable({}));
  for (std::size_t k = 0; k < AllPanelItems().size(); ++k) {
    const PanelItem& item = AllPanelItems()[k];
    if ((item.newerDialectOnly && !newer) || IsDefinedAnywhere(mod, k)) continue;
    const auto list = file.Statements(Keyword::kGameStartup).front().range.begin;
    findings.push_back(
        {.file = index,
         .range = {list, list + std::ssize(language::GrammarOf(Keyword::kGameStartup).word)},
         .text = item.define + " is not defined: the settings panel shows nothing for " + item.name,
         .fix = TemplateLine(mod, index, model, k)});
  }
}

void FindMissing(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    if (IsUserFile(mod.Files()[i])) FindMissingIn(mod, i, findings);
  }
}

}  // namespace

const Rule kPanelMissing = {
    .id = "panel-missing",
    .severity = Severity::kWarning,
    .summary = "a user file lacks a value of the settings panel",
    .explanation =
        "A file with a start-up list is a user file, and the settings panel looks for "
        "its values there. Those of the newer dialect are wanted where the file has "
        "QSIZE. What another of the given files defines is not missing.",
    .good = "// no start-up list: this is no user file\ndefine MAXPLAYERHEALTH 100\n",
    .bad = "define MAXPLAYERHEALTH 100\ngamestartup MAXPLAYERHEALTH STARTARMORHEALTH\n",
    .find = FindMissing};

}  // namespace tessel::check
