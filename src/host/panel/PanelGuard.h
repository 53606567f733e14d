// What the settings panel may write over.
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "control/ucTessel.h"
#include "language/Script.h"
#include "services/Services.h"

namespace tessel {

/// The control writes a value over whatever is selected, also where no define was found. This asks
/// before a value goes anywhere but into a define's value, a map or a title anywhere but into a
/// level's line, and a script word over a selection that nobody sees. An answer holds for the next
/// keys in the same box, as long as they go into the same line.
class PanelGuard {
 public:
  /// It outlives this.
  explicit PanelGuard(MessageBox& messages) : messages_(messages) {}

  /// An up-to-date reading of a document's text, valid until the text changes.
  using ScriptOf = std::function<const language::Script&(Slot)>;

  /// The control whose panel this is, and what its documents say.
  void Watch(ucTessel& tessel, ScriptOf scriptOf);

  bool MayWrite(PanelWrite write, std::string_view text);

  /// A question is on the screen, or not any more.
  Event<bool> Asking;

 private:
  struct Answer {
    Slot slot;
    Position line;  // from 1
    bool yes;
  };

  bool Belongs(PanelWrite write) const;
  bool Ask(PanelWrite write, std::string_view text, Position line);
  const RichTextBox& Editor() const { return documents_->CurrentEditor(); }
  const language::Script& Script() const { return scriptOf_(documents_->Current().Place()); }
  void OnCommandEnded();

  MessageBox& messages_;
  const DocumentList* documents_ = nullptr;
  ScriptOf scriptOf_;
  std::optional<Answer> answer_;
  bool neededInCommand_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
