// The person without a screen.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drive/Player.h"

namespace tessel::drive {

/// Thrown by HeadlessPlayer::Leave through whatever showed the form.
struct Left {
  int status = 0;
};

/// Plays on the models alone.
class HeadlessPlayer : public Player {
 public:
  void Press(CommandButton& button) override { button.Press(); }
  void Press(CheckBox& box) override { box.Press(); }
  void Press(OptionButton& option) override { option.Press(); }
  void PressTab(TabStrip& strip, int tab) override { strip.Press(tab); }
  void PressButton(Toolbar& toolbar, const std::string& key) override { toolbar.Press(key); }
  void PressMenuItem(Toolbar& toolbar, const std::string& key, int item) override;
  void Pick(ListBox& list, int entry) override { list.Pick(entry); }
  void Pick(ComboBox& list, int entry) override { list.Pick(entry); }
  void PickTwice(ListBox& list, int entry) override { list.PickTwice(entry); }
  void Type(TextBox& box, const std::string& text) override { box.Type(text); }
  void Type(ComboBox& box, const std::string& text) override { box.Type(text); }
  void Type(RichTextBox& editor, const std::string& text) override;
  void SelectText(RichTextBox& editor, SelectedRange range) override;
  void ReleaseMouse(RichTextBox& editor, MouseButton button) override;
  void Choose(PopupMenu& menu, const std::string& item) override { menu.Choose(item); }
  void Dismiss(PopupMenu&) override {}
  void Enter(Control& control) override;
  void MoveFocus(Control&) override {}
  void PressKey(ucTessel& control, int code, int shift) override { control.KeyDown(code, shift); }
  void PressKey(Form& form, int code, int shift) override;

  ucTessel& Open(const Services& services) override;
  void Close() override { control_.reset(); }
  void Resize(ucTessel& control, Twips width, Twips height) override;
  void Settle() override {}
  std::vector<std::string> Differences() const override { return {}; }
  [[noreturn]] void Leave(int status) override { throw Left{status}; }

 private:
  std::unique_ptr<ucTessel> control_;
};

}  // namespace tessel::drive
