// What a person's key or mouse does to a Scintilla document, as edits of the model's text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "qt/editor/ScintillaText.h"
#include "text/TextTypes.h"

namespace tessel {

/// One replacement, in the model's offsets.
struct ScintillaEdit {
  Position at = 0;
  Position removed = 0;
  std::string inserted;
};

/// Collects the changes that Scintilla announces. It listens to the announcements *before* a
/// change: those after it make QScintilla count the characters from the start of the text for
/// accessibility, at a cost that grows with the position. The inserted text is therefore read a
/// little later, before the next change or when the edits are taken.
class ScintillaEdits {
 public:
  explicit ScintillaEdits(ScintillaText& text) : text_(text) {}

  void BeforeInsertion(SciPosition at, SciPosition length);
  void BeforeDeletion(SciPosition at, SciPosition length);
  bool Empty() const { return edits_.empty(); }

  /// The edits in their order, joined where one goes on where the one before ended; nothing when
  /// some inserted character has no byte. Forgets them.
  std::optional<std::vector<ScintillaEdit>> Take();
  void Forget();

 private:
  struct Insertion {
    SciPosition at = 0;
    SciPosition length = 0;
  };
  void ReadInsertion();

  ScintillaText& text_;
  std::vector<ScintillaEdit> edits_;
  std::optional<Insertion> unread_;  // belongs to the last edit
  bool refused_ = false;
};

}  // namespace tessel
