// The person in front of the widgets.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "drive/Player.h"
#include "qt/TesselWidget.h"
#include "qt/base/WidgetMap.h"
#include "qt/services/QtScreen.h"

namespace tessel::drive {

/// Plays on a TesselWidget in a window of its own: mouse and key events go to the widgets.
///
/// A selection is made in the editor's model, because a mouse cannot point at every byte offset.
class WidgetPlayer : public Player {
 public:
  explicit WidgetPlayer(Clipboard& clipboard) : clipboard_(clipboard) {}

  void Press(CommandButton& button) override;
  void Press(CheckBox& box) override;
  void Press(OptionButton& option) override;
  void PressTab(TabStrip& strip, int tab) override;
  void PressButton(Toolbar& toolbar, const std::string& key) override;
  void PressMenuItem(Toolbar& toolbar, const std::string& key, int item) override;
  void Pick(ListBox& list, int entry) override;
  void Pick(ComboBox& list, int entry) override;
  void PickTwice(ListBox& list, int entry) override;
  void Type(TextBox& box, const std::string& text) override;
  void Type(ComboBox& box, const std::string& text) override;
  void Type(RichTextBox& editor, const std::string& text) override;
  void SelectText(RichTextBox& editor, SelectedRange range) override;
  void ReleaseMouse(RichTextBox& editor, MouseButton button) override;
  void Choose(PopupMenu& menu, const std::string& item) override;
  void Dismiss(PopupMenu& menu) override;
  void Enter(Control& control) override;
  void MoveFocus(Control& control) override { focus_.MoveTo(control); }
  void PressKey(ucTessel& control, int code, int shift) override;
  void PressKey(Form& form, int code, int shift) override;

  ucTessel& Open(const Services& services) override;
  void Close() override;
  void Resize(ucTessel& control, Twips width, Twips height) override;
  void Settle() override;
  std::vector<std::string> Differences() const override;
  [[noreturn]] void Leave(int status) override;

 private:
  /// The widget of a control as what it must be. Throws std::logic_error when it has none such.
  template <class Widget>
  Widget& As(const Control& control) const;

  Clipboard& clipboard_;
  WidgetMap widgets_;
  QtFocus focus_{widgets_};
  std::unique_ptr<QWidget> window_;
  TesselWidget* tessel_ = nullptr;
};

template <class Widget>
Widget& WidgetPlayer::As(const Control& control) const {
  auto* widget = qobject_cast<Widget*>(widgets_.Find(control));
  if (widget == nullptr) throw std::logic_error(control.Name() + " has no widget of its kind");
  return *widget;
}

}  // namespace tessel::drive
