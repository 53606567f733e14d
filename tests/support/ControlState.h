// All that a control shows of its state, to be compared.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "models/Form.h"
#include "tools/Search.h"

namespace tessel::test {

/// The properties of every hosted control and form, one a line: "txtMap(0) text E1L1.MAP".
class ControlState {
 public:
  using Lines = std::vector<std::string>;

  static Lines Of(const ucTessel& control) {
    ControlState state;
    state.AddAll(control.Controls().all, "");
    for (const Form* form : control.Forms()) {
      state.Add(form->Name(), "caption", form->Caption());
      state.Add(form->Name(), "visible", form->Visible());
      state.AddAll(form->controls, form->Name() + ".");
    }
    const SearchState& search = control.LastSearch();
    state.Add("search", "text", search.FindText);
    state.Add("search", "whole word", search.FindWholeWord);
    state.Add("search", "match case", search.FindMatchCase);
    state.Add("search", "at", search.FindPos);
    state.Add("control", "running", control.Running());
    state.Add("control", "CONPath", control.CONPath());
    return state.lines_;
  }

 private:
  template <class Value>
  void Add(const std::string& who, const char* what, const Value& value) {
    std::ostringstream line;
    line << who << " " << what << " " << value;
    lines_.push_back(line.str());
  }

  void AddAll(const ControlSet& controls, const std::string& surface) {
    for (const Control* control : controls.All()) {
      const std::string name =
          surface + control->Name() + "(" + std::to_string(control->Index()) + ")";
      AddControl(name, *control);
      if (const auto* list = dynamic_cast<const ListControl*>(control)) AddList(name, *list);
      if (const auto* combo = dynamic_cast<const ComboBox*>(control)) {
        Add(name, "text", combo->Text());
      }
      if (const auto* box = dynamic_cast<const TextBox*>(control)) Add(name, "text", box->Text());
      if (const auto* box = dynamic_cast<const CheckBox*>(control))
        Add(name, "value", box->Value());
      if (const auto* option = dynamic_cast<const OptionButton*>(control)) {
        Add(name, "value", option->Value());
      }
      if (const auto* tabs = dynamic_cast<const TabStrip*>(control)) AddTabs(name, *tabs);
      if (const auto* toolbar = dynamic_cast<const Toolbar*>(control)) AddToolbar(name, *toolbar);
      if (const auto* menu = dynamic_cast<const PopupMenu*>(control)) {
        for (const MenuItem* item : menu->Leaves()) Add(name + "." + item->name, "", item->enabled);
      }
      if (const auto* dialog = dynamic_cast<const CommonDialog*>(control)) {
        Add(name, "held", dialog->Held().fileName + " " + dialog->Held().fileTitle);
      }
      if (const auto* editor = dynamic_cast<const RichTextBox*>(control)) AddEditor(name, *editor);
    }
  }

  void AddControl(const std::string& name, const Control& control) {
    std::ostringstream place;
    place << control.Left() << "," << control.Top() << " " << control.Width() << "x"
          << control.Height();
    Add(name, "place", place.str());
    Add(name, "visible", control.Visible());
    Add(name, "enabled", control.Enabled());
    Add(name, "tag", control.Tag());
    Add(name, "caption", control.Caption());
  }

  void AddList(const std::string& name, const ListControl& list) {
    for (const std::string& entry : list.List()) Add(name, "entry", entry);
    Add(name, "selected", list.ListIndex());
  }

  void AddTabs(const std::string& name, const TabStrip& tabs) {
    for (int tab = 1; tab <= tabs.Count(); ++tab) {
      const Tab& t = tabs.At(tab);
      Add(name, "tab", t.caption + "|" + t.key + "|" + t.tag + "|" + t.image);
    }
    Add(name, "selected", tabs.Selected());
  }

  void AddToolbar(const std::string& name, const Toolbar& toolbar) {
    for (const ToolbarButton& button : toolbar.Buttons()) {
      Add(name + "." + button.key, "enabled", button.enabled);
      Add(name + "." + button.key, "pressed", button.pressed);
      for (const ButtonMenuItem& item : button.menu) {
        Add(name + "." + button.key, "item", item.text + "|" + item.key + "|" + item.tag);
      }
    }
  }

  void AddEditor(const std::string& name, const RichTextBox& editor) {
    Add(name, "text", editor.Text());
    for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
      std::ostringstream colour;
      colour << run.start << "+" << run.length << " " << run.colour;
      Add(name, "colour", colour.str());
    }
    Add(name, "selection",
        std::to_string(editor.SelStart()) + "+" + std::to_string(editor.SelLength()));
    Add(name, "selection hidden", editor.HideSelection());
    Add(name, "file", editor.FileName());
    Add(name, "can undo", editor.CanUndo());
    Add(name, "can redo", editor.CanRedo());
  }

  Lines lines_;
};

}  // namespace tessel::test
