// A box with a plain text in it.
#pragma once

#include <string>
#include <utility>

#include "models/Control.h"
#include "text/Text.h"

namespace tessel {

class TextBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const { return text_; }
  /// Sets the text and raises Change, also when the text stays equal.
  void SetText(std::string text) {
    Assign(text_, std::move(text));
    Change.Raise();
  }

  /// True when the box shows several lines.
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool multiLine) { Assign(multiLine_, multiLine); }

  /// Selects the whole text, so that typing replaces it.
  void SelectAll() { SelectAllRequested.Raise(); }

  /// What a person does: replaces the whole text by typing. The line breaks of a box of several
  /// lines are CR LF.
  void Type(std::string text) { SetText(multiLine_ ? WithCrLf(text) : std::move(text)); }
  /// What a person does: moves the focus here.
  void Enter() { GotFocus.Raise(); }

  Event<> Change;
  Event<> GotFocus;
  /// For a view: the whole text is to be selected.
  Event<> SelectAllRequested;

 private:
  std::string text_;
  bool multiLine_ = false;
};

}  // namespace tessel
