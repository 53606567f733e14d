#include "models/RichTextBox.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

void RejectNegative(Position value, const char* what) {
  if (value < 0) {
    throw RuntimeError(std::string("The editor cannot use ") + std::to_string(value) + " as " +
                       what + ".");
  }
}

class ByteSet {
 public:
  ByteSet(std::string_view bytes, bool negate) {
    has_.fill(negate);
    for (const char c : bytes) has_[static_cast<unsigned char>(c)] = !negate;
  }
  bool operator()(char c) const { return has_[static_cast<unsigned char>(c)]; }

 private:
  std::array<bool, 256> has_;
};

}  // namespace

void RichTextBox::SetText(PreparedText text) {
  EndRunOfTyping();
  store_.Assign(std::move(text));
  MoveSelection(0, 0);
  Change.Raise();
}

std::string RichTextBox::TakeText() {
  std::string text = store_.TakeBytes();
  SetText("");
  return text;
}

void RichTextBox::LoadFile(std::string fileName, PreparedText text) {
  Assign(fileName_, std::move(fileName));
  SetText(std::move(text));
}

std::string_view RichTextBox::SelBytes() const { return Bytes().substr(selStart_, selLength_); }

Position RichTextBox::OutsideBreak(Position at) const {
  const std::string_view bytes = Bytes();
  const bool inside = at > 0 && at < Length() && bytes[at - 1] == '\r' && bytes[at] == '\n';
  return inside ? at - 1 : at;
}

void RichTextBox::MoveSelection(Position start, Position length) {
  selStart_ = start;
  selLength_ = length;
  caretColour_.reset();
  EndRunOfTyping();
  SelectionMoved.Raise();
}

void RichTextBox::SetSelStart(Position start) {
  RejectNegative(start, "the start of a selection");
  MoveSelection(OutsideBreak(std::min(start, Length())), 0);
}

void RichTextBox::SetSelLength(Position length) {
  RejectNegative(length, "the length of a selection");
  MoveSelection(selStart_, std::min(length, Length() - selStart_));
}

void RichTextBox::SetSelText(std::string_view text) {
  if (text.empty() && selLength_ == 0) {  // the caret's colour still waits for its text
    EndRunOfTyping();
    Change.Raise();
    return;
  }
  const Position start = selStart_;
  const Position end = start + std::ssize(text);
  const Colour colour = ColourOfNextText();
  store_.Replace(start, selLength_, text, colour);
  MoveSelection(end, 0);
  Change.Raise();
}

Colour RichTextBox::ColourOfNextText() const {
  return caretColour_ ? *caretColour_ : store_.InheritedColour(selStart_, selLength_);
}

std::optional<Colour> RichTextBox::SelColor() const {
  return selLength_ == 0 ? ColourOfNextText() : store_.UniformColour(selStart_, selLength_);
}

void RichTextBox::SetSelColor(Colour colour) {
  EndRunOfTyping();
  if (selLength_ == 0) {
    caretColour_ = colour;
    return;
  }
  store_.Paint(selStart_, selLength_, colour);
  Change.Raise();
}

Position RichTextBox::Find(std::string_view wanted, Position start, std::optional<Position> end,
                           int options) {
  return Find(TextPattern(wanted, options), start, end);
}

Position RichTextBox::Find(const TextPattern& wanted, Position start, std::optional<Position> end) {
  RejectNegative(start, "the start of a search");
  EndRunOfTyping();
  const Position found = wanted.FindIn(Bytes(), start, end.value_or(Length()));
  if (found != kNotFound) MoveSelection(found, wanted.Length());
  return found;
}

void RichTextBox::Span(std::string_view set, bool forward, bool negate) {
  const ByteSet included(set, negate);
  const std::string_view bytes = Bytes();
  Position start = selStart_;
  Position end = SelEnd();
  if (forward) {
    while (end < Length() && included(bytes[end])) ++end;
    end = OutsideBreak(end);
    start = std::min(start, end);
  } else {
    while (start > 0 && included(bytes[start - 1])) --start;
    start = OutsideBreak(start);
  }
  MoveSelection(start, end - start);
}

void RichTextBox::Undo() {
  if (const auto caret = store_.Undo()) {
    MoveSelection(*caret, 0);
    Change.Raise();
  }
}

void RichTextBox::Redo() {
  if (const auto caret = store_.Redo()) {
    MoveSelection(*caret, 0);
    Change.Raise();
  }
}

void RichTextBox::EmptyUndoBuffer() {
  EndRunOfTyping();
  store_.EmptyUndoBuffer();
}

void RichTextBox::Restore(Snapshot snapshot) {
  store_.Restore(std::move(snapshot.store));
  MoveSelection(snapshot.selStart, snapshot.selLength);
}

void RichTextBox::Type(std::string_view text) {
  EndRunOfTyping();
  SetSelText(text);
}

void RichTextBox::SelectByHand(Position start, Position length) {
  start = std::clamp<Position>(start, 0, Length());
  SetSelStart(start);
  SetSelLength(std::clamp<Position>(length, 0, Length() - selStart_));
}

void RichTextBox::EditByHand(Position at, Position length, std::string_view inserted) {
  const bool atCaret = at == selStart_ && length == selLength_;
  const Colour colour = atCaret ? ColourOfNextText() : store_.InheritedColour(at, length);
  store_.Replace(at, length, inserted, colour);
  selStart_ = at + std::ssize(inserted);
  selLength_ = 0;
  caretColour_.reset();
  editedByHand_ = true;
  Change.Raise();
}

RichTextBox::Gesture::Gesture(RichTextBox& editor, bool typing) : editor_(editor), typing_(typing) {
  editor_.store_.BeginStep(typing && editor_.runOfTyping_);
  editor_.editedByHand_ = false;
}

RichTextBox::Gesture::~Gesture() {
  editor_.store_.EndStep();
  editor_.runOfTyping_ = typing_ && editor_.editedByHand_;
}

}  // namespace tessel
