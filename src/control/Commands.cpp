#include "control/Commands.h"

#include <utility>

#include "documents/Documents.h"
#include "documents/Templates.h"
#include "randomizer/Randomizer.h"
#include "settings/SettingsPanel.h"
#include "surface/CurrentEditor.h"
#include "text/Text.h"
#include "tools/EditCommands.h"
#include "tools/Search.h"
#include "tools/modMenuOptions.h"
#include "words/WordPanel.h"

namespace tessel {
namespace {

using Action = std::function<void()>;

/// Commands on the current document's editor.
class EditorActions {
 public:
  EditorActions(HostedControls& controls, const Services& services)
      : controls_(controls), services_(services) {}

  Action Tool(std::string (*tool)(std::string_view)) const {
    return [&c = controls_, tool] { TransformSelection(CurrentEditor(c), tool); };
  }
  Action OnClipboard(void (*command)(RichTextBox&, Clipboard&)) const {
    return [&c = controls_, &clipboard = services_.clipboard, command] {
      command(CurrentEditor(c), clipboard);
    };
  }
  Action On(void (*command)(RichTextBox&)) const {
    return [&c = controls_, command] { command(CurrentEditor(c)); };
  }
  Action Undo() const {
    return [&c = controls_, &focus = services_.focus] { UndoOnce(CurrentEditor(c), focus); };
  }

 private:
  HostedControls& controls_;
  const Services& services_;
};

void DeleteSelection(RichTextBox& editor) { editor.SetSelText(""); }
void CopySelection(RichTextBox& editor, Clipboard& clipboard) { Copy(editor, clipboard); }

Action Randomize(Randomizer& randomizer, const char* section) {
  return [&randomizer, section] { randomizer.RandomizeSection(section); };
}

Commands::Table MenuItems(const CommandTargets& t, const EditorActions& editor) {
  Commands::Table items = {
      {"CommentBlock", editor.Tool(RemarkBlock)},
      {"CommentLine", editor.Tool(RemarkLine)},
      {"Uppercase", editor.Tool(ToUpperText)},
      {"Lowercase", editor.Tool(ToLowerText)},
      {"Indent", editor.Tool(IndentText)},
      {"Parameter", [&words = t.words] { words.ParameterInfo(); }},
      {"Player", Randomize(t.randomizer, "Player")},
      {"Weapon", Randomize(t.randomizer, "Weapon")},
      {"Enemy", Randomize(t.randomizer, "Enemy")},
      {"Misc", Randomize(t.randomizer, "Misc")},
  };
  for (const Template& entry : kTemplates) {
    items[std::string(entry.code)] = [&documents = t.documents, code = std::string(entry.code)] {
      documents.NewFromTemplate(code);
    };
  }
  return items;
}

Commands::Table Buttons(const CommandTargets& t, const EditorActions& editor) {
  return {
      {"FileNew", [&d = t.documents] { d.NewFromTemplate("15A"); }},
      {"FileOpen", [&d = t.documents] { d.OpenFile(""); }},
      {"FileClose", [&d = t.documents, &c = t.controls] { d.CloseDocument(CurrentDocIndex(c)); }},
      {"FileSave", [&d = t.documents] { d.SaveDocument(false); }},
      {"Cut", editor.OnClipboard(Cut)},
      {"Copy", editor.OnClipboard(CopySelection)},
      {"Paste", editor.OnClipboard(Paste)},
      {"Find", [&search = t.search] { search.Find(); }},
      {"Tools", [&bar = t.controls.tbToolBar] { bar.PressMenuItem("Tools", 1); }},
      {"RandAll", Randomize(t.randomizer, "All")},
      {"RandSec", [&r = t.randomizer,
                   &c = t.controls] { r.RandomizeSection(c.tbsCon.At(c.tbsCon.Selected()).key); }},
      {"Convert", t.convert},
      {"Colorize", t.applyColourMode},
      {"ShowTabs", [&panel = t.settings,
                    &c = t.controls] { panel.ShowSettingsPanel(c.tbToolBar.Pressed("ShowTabs")); }},
  };
}

Commands::Table PopupItems(const CommandTargets& t, const EditorActions& editor) {
  return {
      {"mnuRtbPopupFileOpen", [&d = t.documents] { d.OpenFile(""); }},
      {"mnuRtbPopupFileClose",
       [&d = t.documents, &c = t.controls] { d.CloseDocument(CurrentDocIndex(c)); }},
      {"mnuRtbPopupFileSave", [&d = t.documents] { d.SaveDocument(true); }},
      {"mnuRtbPopupFileSaveAs", [&d = t.documents] { d.SaveDocument(false); }},
      {"mnuRtbPopupEditUndo", editor.Undo()},
      {"mnuRtbPopupEditCut", editor.OnClipboard(Cut)},
      {"mnuRtbPopupEditCopy", editor.OnClipboard(CopySelection)},
      {"mnuRtbPopupEditPaste", editor.OnClipboard(Paste)},
      {"mnuRtbPopupEditDelete", editor.On(DeleteSelection)},
      {"mnuRtbPopupEditSel", editor.On(SelectAll)},
      {"mnuRtbPopupToolsUpper", editor.Tool(ToUpperText)},
      {"mnuRtbPopupToolsLower", editor.Tool(ToLowerText)},
      {"mnuRtbPopupToolsMremark", editor.Tool(RemarkBlock)},
      {"mnuRtbPopupToolsRremark", editor.Tool(RemarkLine)},
      {"mnuRtbPopupToolsUnremark", editor.Tool(UnremarkText)},
      {"mnuRtbPopupToolsIndent", editor.Tool(IndentText)},
      {"mnuRtbPopupToolsParameters", [&words = t.words] { words.ParameterInfo(); }},
      {"mnuRtbPopupFind", [&search = t.search] { search.Find(); }},
      {"mnuRtbPopupFindNext", [&search = t.search] { search.FindNext(); }},
  };
}

}  // namespace

void Commands::Run(const Table& table, std::string_view key) {
  const auto command = table.find(key);
  if (command != table.end()) command->second();
}

void Commands::RunButtonMenuItem(std::string_view button, const ButtonMenuItem& item) const {
  if (button == "FileNew" && item.key.empty()) return openRecent(item.tag);
  Run(menuItems, item.key);
}

Commands MakeCommands(const CommandTargets& t) {
  const EditorActions editor(t.controls, t.services);
  Commands commands;
  commands.buttons = Buttons(t, editor);
  commands.menuItems = MenuItems(t, editor);
  commands.popupItems = PopupItems(t, editor);
  commands.openRecent = [&documents = t.documents](const std::string& path) {
    documents.OpenFile(path);
  };
  return commands;
}

}  // namespace tessel
