// The editor: a text with colours, one selection, searching, and one-level notifications.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "models/Control.h"
#include "text/TextSearch.h"
#include "text/TextStore.h"

namespace tessel {

/// Mouse buttons by the program's own values.
enum class MouseButton { kLeft = 1, kRight = 2, kMiddle = 4 };

/// The rich-text editor's model. Text is a sequence of single-byte characters, shown as
/// Windows-1252 and kept byte for byte; positions are 0-based byte offsets.
///
/// CR LF is one break that the caret cannot enter: where SelStart is assigned or Span stops between
/// the two, the position is the one before the CR. SelLength is taken as given.
/// Every change of text or colour raises Change, whoever made it.
class RichTextBox : public Control {
 public:
  using Control::Control;

  // --- Text
  std::string_view Bytes() const { return store_.Bytes(); }
  std::string Text() const { return std::string(store_.Bytes()); }
  Position Length() const { return store_.Length(); }
  /// Replaces the text: caret at 0, everything black, nothing to undo.
  void SetText(PreparedText text);

  /// The file last loaded into this editor. Saving never changes it.
  const std::string& FileName() const { return fileName_; }
  /// Takes over what was read from a file: its name and its bytes.
  void LoadFile(std::string fileName, PreparedText text);

  // --- Selection
  Position SelStart() const { return selStart_; }
  Position SelLength() const { return selLength_; }
  Position SelEnd() const { return selStart_ + selLength_; }
  /// Clamped to the text; the selection collapses. A negative position is a RuntimeError.
  void SetSelStart(Position start);
  /// Clamped to the text. A negative length is a RuntimeError.
  void SetSelLength(Position length);
  std::string SelText() const { return std::string(SelBytes()); }
  std::string_view SelBytes() const;
  /// Replaces the selection; the caret stands after the new text.
  void SetSelText(std::string_view text);

  /// True when the selection is not drawn while the editor has no focus.
  bool HideSelection() const { return hideSelection_; }
  void SetHideSelection(bool hide) { Assign(hideSelection_, hide); }

  /// The selection's colour, or nothing when it is mixed; of an empty selection the colour that
  /// text inserted there would get.
  std::optional<Colour> SelColor() const;
  /// Of an empty selection: holds for the next text inserted at that caret.
  void SetSelColor(Colour colour);

  /// Searches from `start` to `end` (to the end of the text when left out); see TextPattern.
  /// Selects a hit and returns its position; a miss returns kNotFound and leaves the selection. A
  /// negative start is a RuntimeError.
  Position Find(std::string_view wanted, Position start, std::optional<Position> end = std::nullopt,
                int options = kFindDefault);
  /// The same with a pattern that is used again and again.
  Position Find(const TextPattern& wanted, Position start,
                std::optional<Position> end = std::nullopt);
  /// Forward: moves the selection's end on over characters that are in `set` (`negate`: that are
  /// not). Backward: moves its start back. The other end stays.
  void Span(std::string_view set, bool forward, bool negate);

  // --- Undo: one step takes back the last edit; a run of typing is one edit
  bool CanUndo() const { return store_.CanUndo(); }
  bool CanRedo() const { return store_.CanRedo(); }
  void Undo();
  void Redo();
  void EmptyUndoBuffer();

  /// What the document looked like, to go back to it whole: text, colours, undo history, selection.
  struct Snapshot {
    TextStore::Snapshot store;
    Position selStart = 0;
    Position selLength = 0;
  };
  /// Gives the text to the caller, without a copy, and leaves an empty one, as SetText does.
  std::string TakeText();
  Snapshot TakeSnapshot() const { return {store_.TakeSnapshot(), selStart_, selLength_}; }
  /// Raises no Change.
  void Restore(Snapshot snapshot);

  // --- What a person does
  /// Types over the selection: one edit.
  void Type(std::string_view text);
  /// Selects; clamped to the text.
  void SelectByHand(Position start, Position length);
  /// Replaces a range in the course of a gesture (see Gesture).
  void EditByHand(Position at, Position length, std::string_view inserted);
  void ReleaseMouse(MouseButton button) { MouseUp.Raise(button); }

  /// The edits made while one lives are undone together. A gesture that is a key of a run of typing
  /// joins the run before it.
  class Gesture {
   public:
    Gesture(RichTextBox& editor, bool typing);
    ~Gesture();
    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

   private:
    RichTextBox& editor_;
    bool typing_;
  };

  TextStore& Store() { return store_; }
  const TextStore& Store() const { return store_; }

  Event<> Change;
  Event<MouseButton> MouseUp;
  /// For a view: code moved the selection.
  Event<> SelectionMoved;

 private:
  Position OutsideBreak(Position at) const;
  void MoveSelection(Position start, Position length);
  Colour ColourOfNextText() const;
  void EndRunOfTyping() { runOfTyping_ = false; }

  TextStore store_;
  std::string fileName_;
  Position selStart_ = 0;
  Position selLength_ = 0;
  bool hideSelection_ = true;
  bool runOfTyping_ = false;
  bool editedByHand_ = false;
  std::optional<Colour> caretColour_;
};

}  // namespace tessel
