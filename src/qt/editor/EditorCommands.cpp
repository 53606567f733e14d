#include "qt/editor/EditorCommands.h"

#include "base/RuntimeError.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorKeys.h"

namespace tessel {

bool EditorCommands::MayEdit() {
  if (refusal_) Refused.Raise(*refusal_);
  return !refusal_;
}

void EditorCommands::Undo() {
  if (!MayEdit()) return;
  mirror_.ByHand([this] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    model_.Undo();
  });
}

void EditorCommands::Redo() {
  if (!MayEdit()) return;
  mirror_.ByHand([this] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    model_.Redo();
  });
}

void EditorCommands::Copy() {
  if (model_.SelLength() == 0) return;
  clipboard_.Clear();
  clipboard_.SetText(model_.SelText());
}

void EditorCommands::Cut() {
  if (model_.SelLength() == 0 || !MayEdit()) return;
  Copy();
  Insert({}, false);
}

void EditorCommands::Paste() {
  if (!MayEdit()) return;
  try {
    const std::string bytes = clipboard_.GetText();
    if (!bytes.empty()) Insert(bytes, false);
  } catch (const RuntimeError& error) {
    Refused.Raise(QString::fromUtf8(error.what()));
  }
}

void EditorCommands::BreakLine() {
  if (!MayEdit()) return;
  std::string bytes(LineEndOfReturn(model_.Bytes()));
  bytes += IndentationAt(model_.Bytes(), model_.SelStart());
  Insert(bytes, false);
}

void EditorCommands::Replace(Position at, Position length, const std::string& bytes) {
  if (!MayEdit()) return;
  mirror_.ByHand([&] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    mirror_.OpenUndoStep(false);
    model_.EditByHand(at, length, bytes);
  });
}

void EditorCommands::Insert(const std::string& bytes, bool typing) {
  mirror_.ByHand(
      [&] {
        mirror_.TakeOver();
        mirror_.OpenUndoStep(typing);
        model_.EditByHand(model_.SelStart(), model_.SelLength(), bytes);
      },
      typing);
}

void EditorCommands::MoveCaretOutOfSelection(Position at) {
  const bool inSelection = at >= model_.SelStart() && at <= model_.SelEnd();
  if (!inSelection) model_.SelectByHand(at, 0);
}

void EditorCommands::PasteAt(Position at, const QMimeData& data) {
  if (!MayEdit()) return;
  try {
    const std::string bytes = BytesOfMime(data);
    model_.SelectByHand(at, 0);
    Insert(bytes, false);
  } catch (const RuntimeError& error) {
    Refused.Raise(QString::fromUtf8(error.what()));
  }
}

bool EditorCommands::Drop(Position at, const QMimeData& data, bool moving) {
  if (!MayEdit()) return false;
  try {
    Place(at, BytesOfMime(data), moving);
    return true;
  } catch (const RuntimeError& error) {
    Refused.Raise(QString::fromUtf8(error.what()));
    return false;
  }
}

void EditorCommands::Place(Position at, const std::string& bytes, bool moving) {
  const Position start = model_.SelStart();
  const Position length = model_.SelLength();
  if (moving && at >= start && at <= start + length) return;
  mirror_.ByHand([&] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    mirror_.OpenUndoStep(false);
    if (moving) model_.EditByHand(start, length, {});
    const Position target = moving && at > start ? at - length : at;
    model_.EditByHand(target, 0, bytes);
    model_.SelectByHand(target, std::ssize(bytes));
  });
}

void EditorCommands::Commit(const QString& text, Position offset, Position length) {
  if (!MayEdit()) return;
  const auto bytes = BytesOfText(text);
  if (!bytes) {
    Refused.Raise(RefusalOf(text));
    return;
  }
  mirror_.ByHand([&] {
    mirror_.TakeOver();
    if (length > 0) model_.SelectByHand(model_.SelStart() + offset, length);
  });
  Insert(*bytes, IsPrintable(text));
}

}  // namespace tessel
