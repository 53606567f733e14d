// The person in front of the control.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "control/ucTessel.h"
#include "models/Form.h"

namespace tessel::drive {

/// A selection in an editor.
struct SelectedRange {
  Position start = 0;
  Position length = 0;
};

/// Plays gestures on the control's parts. The commands have checked them already: the part can be
/// used and the entry exists. Implementations either call the models' gesture methods or send real
/// input to widgets.
class Gestures {
 public:
  virtual ~Gestures() = default;

  virtual void Press(CommandButton& button) = 0;
  virtual void Press(CheckBox& box) = 0;
  virtual void Press(OptionButton& option) = 0;
  virtual void PressTab(TabStrip& strip, int tab) = 0;
  virtual void PressButton(Toolbar& toolbar, const std::string& key) = 0;
  virtual void PressMenuItem(Toolbar& toolbar, const std::string& key, int item) = 0;
  virtual void Pick(ListBox& list, int entry) = 0;
  virtual void Pick(ComboBox& list, int entry) = 0;
  virtual void PickTwice(ListBox& list, int entry) = 0;
  /// Replace the whole text.
  virtual void Type(TextBox& box, const std::string& text) = 0;
  virtual void Type(ComboBox& box, const std::string& text) = 0;
  /// Types over the selection; an empty text takes the selection away.
  virtual void Type(RichTextBox& editor, const std::string& text) = 0;
  virtual void SelectText(RichTextBox& editor, SelectedRange range) = 0;
  virtual void ReleaseMouse(RichTextBox& editor, MouseButton button) = 0;
  /// The popup menu is open: chooses one of its items, or goes away without a choice.
  virtual void Choose(PopupMenu& menu, const std::string& item) = 0;
  virtual void Dismiss(PopupMenu& menu) = 0;
  /// Moves the focus; also what code asks for.
  virtual void Enter(Control& control) = 0;
  virtual void MoveFocus(Control& control) = 0;
  virtual void PressKey(ucTessel& control, int code, int shift) = 0;
  virtual void PressKey(Form& form, int code, int shift) = 0;
};

/// One platform's person.
class Player : public Gestures {
 public:
  /// Creates the control on the services, which outlive it, and runs its start-up.
  virtual ucTessel& Open(const Services& services) = 0;
  /// Destroys it.
  virtual void Close() = 0;
  /// The host gives the control another size, in twips.
  virtual void Resize(ucTessel& control, Twips width, Twips height) = 0;
  /// Lets everything that is pending happen.
  virtual void Settle() = 0;
  /// What the screen shows otherwise than the models say, once all that was pending has happened: a
  /// sentence each. Nothing where there is no screen.
  virtual std::vector<std::string> Differences() const = 0;
  /// Ends the program from wherever it is, also from inside a modal form.
  [[noreturn]] virtual void Leave(int status) = 0;
};

}  // namespace tessel::drive
