// What happens to an editor, in its order.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "models/RichTextBox.h"
#include "services/HeadlessServices.h"

namespace tessel::test {

/// Writes down every change of an editor's place, visibility, tag, selection and text, and of the
/// pointer: "left -20000", "hidden", "tag BW", "selection hidden", "select 0+5", "change",
/// "pointer 11".
class EditorTrace {
 public:
  EditorTrace(RichTextBox& editor, PlainScreenPointer& pointer) : editor_(editor), last_(Now()) {
    subscriptions_ = {
        editor.Refresh.Connect([this] { Compare(); }),
        editor.SelectionMoved.Connect([this] { Compare(); }),
        editor.Change.Connect([this] { steps_.push_back("change"); }),
        pointer.Changed.Connect([this](PointerShape shape) {
          steps_.push_back("pointer " + std::to_string(static_cast<int>(shape)));
        }),
    };
  }

  /// The steps since the last call.
  std::vector<std::string> Take() { return std::exchange(steps_, {}); }

 private:
  std::vector<std::string> Now() const {
    return {
        "left " + std::to_string(static_cast<int>(editor_.Left())),
        editor_.Visible() ? "visible" : "hidden", "tag " + editor_.Tag(),
        editor_.HideSelection() ? "selection hidden" : "selection shown",
        "select " + std::to_string(editor_.SelStart()) + "+" + std::to_string(editor_.SelLength())};
  }

  void Compare() {
    std::vector<std::string> now = Now();
    for (std::size_t i = 0; i < now.size(); ++i) {
      if (now[i] != last_[i]) steps_.push_back(now[i]);
    }
    last_ = std::move(now);
  }

  RichTextBox& editor_;
  std::vector<std::string> last_;
  std::vector<std::string> steps_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel::test
