// What a person's commands do to an editor's text.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <utility>

#include "base/Event.h"
#include "models/RichTextBox.h"
#include "qt/editor/ScintillaMirror.h"
#include "services/Services.h"

class QMimeData;

namespace tessel {

/// Commands that change the model themselves, each as a gesture; the mirror shows what comes of it.
/// Model, mirror and clipboard must outlive them.
class EditorCommands {
 public:
  EditorCommands(RichTextBox& model, ScintillaMirror& mirror, Clipboard& clipboard)
      : model_(model), mirror_(mirror), clipboard_(clipboard) {}

  /// Every command that edits is refused from now on, with that sentence; nothing: none is.
  void RefuseEdits(std::optional<QString> why) { refusal_ = std::move(why); }

  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  /// Breaks the line, and begins the new one as the old one began.
  void BreakLine();
  /// One edit of its own.
  void Replace(Position at, Position length, const std::string& bytes);

  /// Moves the caret, unless the place is in the selection.
  void MoveCaretOutOfSelection(Position at);
  void PasteAt(Position at, const QMimeData& data);
  /// Inserts and selects. With `moving` the selection goes from its place to there, unless it is
  /// dropped on itself. False when the text is refused.
  bool Drop(Position at, const QMimeData& data, bool moving);
  /// An input method's text, which replaces `length` bytes at `offset` from the selection's start,
  /// or the selection when that is nothing.
  void Commit(const QString& text, Position offset, Position length);

  /// Nothing was edited; a sentence for the user says why.
  Event<const QString&> Refused;

 private:
  bool MayEdit();
  void Insert(const std::string& bytes, bool typing);
  void Place(Position at, const std::string& bytes, bool moving);

  RichTextBox& model_;
  ScintillaMirror& mirror_;
  Clipboard& clipboard_;
  std::optional<QString> refusal_;
};

}  // namespace tessel
