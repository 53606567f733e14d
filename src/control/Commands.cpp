#include "control/Commands.h"

#include <algorithm>

#include "documents/Documents.h"
#include "documents/Templates.h"
#include "randomizer/Randomizer.h"
#include "settings/SettingsPanel.h"
#include "text/Text.h"
#include "tools/EditCommands.h"
#include "tools/Search.h"
#include "tools/modMenuOptions.h"
#include "words/WordPanel.h"

namespace tessel {
namespace {

using Targets = const CommandTargets&;

/// What is run, and the keys under which the surfaces have it; empty where one does not.
struct Command {
  std::string_view button, dropDownItem, popupItem;
  void (*run)(Targets);

  std::string_view KeyOn(Surface surface) const {
    if (surface == Surface::kButton) return button;
    return surface == Surface::kDropDownItem ? dropDownItem : popupItem;
  }
};

template <std::string (*tool)(std::string_view)>
void Transform(Targets t) {
  TransformSelection(t.list.CurrentEditor(), tool);
}

template <auto command>
void OnClipboard(Targets t) {
  command(t.list.CurrentEditor(), t.clipboard);
}

constexpr Command kCommands[] = {
    {"FileNew", "", "", [](Targets t) { t.documents.NewFromTemplate("15A"); }},
    {"FileOpen", "", "mnuRtbPopupFileOpen", [](Targets t) { t.documents.OpenFile(""); }},
    {"FileClose", "", "mnuRtbPopupFileClose",
     [](Targets t) { t.documents.CloseDocument(t.list.Current().Place()); }},
    {"", "", "mnuRtbPopupFileSave", [](Targets t) { t.documents.SaveDocument(true); }},
    {"FileSave", "", "mnuRtbPopupFileSaveAs", [](Targets t) { t.documents.SaveDocument(false); }},

    {"", "", "mnuRtbPopupEditUndo", [](Targets t) { UndoOnce(t.list.CurrentEditor(), t.focus); }},
    {"Cut", "", "mnuRtbPopupEditCut", OnClipboard<Cut>},
    {"Copy", "", "mnuRtbPopupEditCopy", OnClipboard<Copy>},
    {"Paste", "", "mnuRtbPopupEditPaste", OnClipboard<Paste>},
    {"", "", "mnuRtbPopupEditDelete", [](Targets t) { t.list.CurrentEditor().SetSelText(""); }},
    {"", "", "mnuRtbPopupEditSel", [](Targets t) { SelectAll(t.list.CurrentEditor()); }},

    {"Tools", "", "", [](Targets t) { t.tbToolBar.PressMenuItem("Tools", 1); }},
    {"", "CommentBlock", "mnuRtbPopupToolsMremark", Transform<RemarkBlock>},
    {"", "CommentLine", "mnuRtbPopupToolsRremark", Transform<RemarkLine>},
    {"", "", "mnuRtbPopupToolsUnremark", Transform<UnremarkText>},
    {"", "Uppercase", "mnuRtbPopupToolsUpper", Transform<ToUpperText>},
    {"", "Lowercase", "mnuRtbPopupToolsLower", Transform<ToLowerText>},
    {"", "Indent", "mnuRtbPopupToolsIndent", Transform<IndentText>},
    {"", "Parameter", "mnuRtbPopupToolsParameters", [](Targets t) { t.words.ParameterInfo(); }},

    {"Find", "", "mnuRtbPopupFind", [](Targets t) { t.search.Find(); }},
    {"", "", "mnuRtbPopupFindNext", [](Targets t) { t.search.FindNext(); }},

    {"RandAll", "", "", [](Targets t) { t.randomizer.RandomizeSection("All"); }},
    {"RandSec", "", "",
     [](Targets t) { t.randomizer.RandomizeSection(t.tbsCon.At(t.tbsCon.Selected()).key); }},
    {"", "Player", "", [](Targets t) { t.randomizer.RandomizeSection("Player"); }},
    {"", "Weapon", "", [](Targets t) { t.randomizer.RandomizeSection("Weapon"); }},
    {"", "Enemy", "", [](Targets t) { t.randomizer.RandomizeSection("Enemy"); }},
    {"", "Misc", "", [](Targets t) { t.randomizer.RandomizeSection("Misc"); }},

    {"Convert", "", "", [](Targets t) { t.convert(); }},
    {"Colorize", "", "", [](Targets t) { t.applyColourMode(); }},
    {"ShowTabs", "", "",
     [](Targets t) { t.settings.ShowSettingsPanel(t.tbToolBar.Pressed("ShowTabs")); }},
};

const Command* Find(Surface surface, std::string_view key) {
  if (key.empty()) return nullptr;
  const auto found = std::ranges::find_if(
      kCommands, [&](const Command& command) { return command.KeyOn(surface) == key; });
  return found == std::end(kCommands) ? nullptr : &*found;
}

void Run(Surface surface, std::string_view key, Targets targets) {
  if (const Command* command = Find(surface, key)) command->run(targets);
}

bool IsTemplate(std::string_view key) { return !TemplateFile(key).empty(); }

}  // namespace

bool IsCommand(Surface surface, std::string_view key) {
  return Find(surface, key) != nullptr || (surface == Surface::kDropDownItem && IsTemplate(key));
}

Commands::Commands(const CommandTargets& targets)
    : targets_(std::make_shared<const CommandTargets>(targets)) {}

void Commands::RunButton(std::string_view key) const { Run(Surface::kButton, key, *targets_); }

void Commands::RunPopupItem(std::string_view name) const {
  Run(Surface::kPopupItem, name, *targets_);
}

void Commands::RunButtonMenuItem(std::string_view button, const ButtonMenuItem& item) const {
  if (button == "FileNew" && item.key.empty()) return targets_->documents.OpenFile(item.tag);
  if (IsTemplate(item.key)) return targets_->documents.NewFromTemplate(item.key);
  Run(Surface::kDropDownItem, item.key, *targets_);
}

}  // namespace tessel
