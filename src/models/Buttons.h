// Buttons, options and check boxes.
#pragma once

#include <vector>

#include "models/Control.h"

namespace tessel {

class CommandButton : public Control {
 public:
  using Control::Control;

  /// What a person does.
  void Press() { Click.Raise(); }

  Event<> Click;
};

class CheckBox : public Control {
 public:
  using Control::Control;

  bool Value() const { return value_; }
  /// Raises no event.
  void SetValue(bool value) { Assign(value_, value); }

  /// What a person does: toggles the box.
  void Press() {
    SetValue(!value_);
    Click.Raise();
  }

  Event<> Click;

 private:
  bool value_ = false;
};

/// One of several options of which at most one is on: switching one on switches the rest of its
/// group off.
class OptionButton : public Control {
 public:
  using Control::Control;

  bool Value() const { return value_; }
  /// Raises no event.
  void SetValue(bool value);

  /// Makes the two exclude each other.
  static void Pair(OptionButton& a, OptionButton& b);

  /// What a person does: chooses this option. Click is raised also when it was on already.
  void Press() {
    SetValue(true);
    Click.Raise();
  }

  Event<> Click;

 private:
  bool value_ = false;
  OptionButton* other_ = nullptr;
};

}  // namespace tessel
