// An editor on the screen: what a person types there and sees.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {
class ScintillaView;
}

namespace tessel::drive {

/// The text of a view's document in UTF-8, as it is at this moment. Valid until it changes.
std::string_view ShownUtf8(const ScintillaView& view);
/// Start and length of its selection, in bytes of the model.
std::pair<Position, Position> ShownSelection(const ScintillaView& view);

/// Plays a person at a ScintillaView and reads what the widget shows, not what the model holds. The
/// view must outlive it.
class EditorScreen {
 public:
  explicit EditorScreen(ScintillaView& view) : view_(view) {}

  /// Sends a key press and release for each character, and Return for a line end of the kind that
  /// it inserts; what no key makes (a control character, another line end) comes as from an input
  /// method, so that exactly this text arrives. A text of one tab is the Tab key, which indents the
  /// lines of a selection. One undo step.
  void Type(const QString& text);

  std::string Text();
  /// Start and length in bytes.
  std::pair<Position, Position> Selection();
  /// True when the selection is painted now.
  bool SelectionShown() const;
  /// The maximal runs of one colour, by the model's colours; black ones too.
  std::vector<ColourRun> Colours();

 private:
  /// The document's text in UTF-8, after everything pending.
  std::string_view Utf8();

  ScintillaView& view_;
};

}  // namespace tessel::drive
