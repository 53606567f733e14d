#include "text/TextStore.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

constexpr std::size_t kMostColours = 256;

}  // namespace

void TextStore::Assign(PreparedText text) {
  const Position before = Length();
  colours_ = std::move(text.colours);
  bytes_ = std::move(text.bytes);
  ++revision_;
  palette_.assign(1, kBlack);
  EmptyUndoBuffer();
  TellReset(before);
}

std::string TextStore::TakeBytes() {
  std::string bytes = std::move(bytes_);
  const Position before = std::ssize(bytes);
  bytes_ = {};
  colours_ = {};
  ++revision_;
  palette_.assign(1, kBlack);
  EmptyUndoBuffer();
  TellReset(before);
  return bytes;
}

void TextStore::Replace(Position at, Position length, std::string_view inserted, Colour colour) {
  if (length == 0 && inserted.empty()) return;
  // What may throw comes first: without room nothing has changed.
  const char index = PaletteIndex(colour);
  MakeRoom(at, length, inserted);
  Step* step = stepStarted_ && !undo_.empty() ? &undo_.back() : nullptr;
  TextEdit told{at, {}, inserted, step != nullptr};
  const bool continues = step != nullptr && length == 0 && !step->empty() &&
                         step->back().at + std::ssize(step->back().inserted) == at;
  if (continues) {
    step->back().inserted += inserted;
  } else {
    Edit edit{at, bytes_.substr(at, length), std::string(inserted)};
    if (step == nullptr) step = &undo_.emplace_back();
    told.removed = step->emplace_back(std::move(edit)).removed;
  }
  redo_.clear();
  stepStarted_ = openSteps_ > 0;
  Change(told, index);
}

void TextStore::MakeRoom(Position at, Position length, std::string_view inserted) {
  const std::size_t size = bytes_.size() - static_cast<std::size_t>(length) + inserted.size();
  if (size > bytes_.size()) bytes_.reserve(size);
  colours_.MakeRoomToReplace(at, std::ssize(inserted));
}

void TextStore::Change(const TextEdit& edit, char colourIndex) {
  const Position length = std::ssize(edit.removed);
  MakeRoom(edit.at, length, edit.inserted);
  bytes_.replace(edit.at, length, edit.inserted);
  ++revision_;
  colours_.Replace(edit.at, length, std::ssize(edit.inserted), colourIndex);
  if (view_ != nullptr) view_->Replaced(edit.at, length, std::ssize(edit.inserted));
  Edited.Raise(edit);
}

void TextStore::TellReset(Position lengthBefore) {
  if (view_ != nullptr) view_->Replaced(0, lengthBefore, Length());
  Reset.Raise();
}

char TextStore::PaletteIndex(Colour colour) {
  const auto it = std::ranges::find(palette_, colour);
  if (it != palette_.end()) return static_cast<char>(it - palette_.begin());
  if (palette_.size() == kMostColours) {
    throw RuntimeError("A document cannot hold more than 256 colours.");
  }
  palette_.push_back(colour);
  return static_cast<char>(palette_.size() - 1);
}

Colour TextStore::ColourAt(Position at) const { return ColourOf(colours_.At(at).index); }

std::optional<Colour> TextStore::UniformColour(Position at, Position length) const {
  if (length == 0) return std::nullopt;
  const IndexRuns::Stretch first = colours_.At(at);
  for (Position next = first.end; next < at + length;) {
    const IndexRuns::Stretch stretch = colours_.At(next);
    if (stretch.index != first.index) return std::nullopt;
    next = stretch.end;
  }
  return ColourOf(first.index);
}

void TextStore::Paint(Position at, Position length, Colour colour) {
  colours_.Fill(at, length, PaletteIndex(colour));
  if (view_ != nullptr) view_->Painted(at, length);
}

std::string TextStore::ColourIndices(Position at, Position length) const {
  std::string indices;
  indices.reserve(static_cast<std::size_t>(length));
  while (std::ssize(indices) < length) {
    const Position next = at + std::ssize(indices);
    const IndexRuns::Stretch stretch = colours_.At(next);
    const Position count = std::min(stretch.end, at + length) - next;
    indices.append(static_cast<std::size_t>(count), stretch.index);
  }
  return indices;
}

std::vector<ColourRun> TextStore::Runs(Position at, Position length) const {
  std::vector<ColourRun> runs;
  for (Position next = at; next < at + length;) {
    const IndexRuns::Stretch stretch = colours_.At(next);
    const Position end = std::min(stretch.end, at + length);
    const Colour colour = ColourOf(stretch.index);
    if (runs.empty() || runs.back().colour != colour) runs.push_back({next, 0, colour});
    runs.back().length += end - next;
    next = end;
  }
  return runs;
}

Colour TextStore::InheritedColour(Position at, Position length) const {
  if (length > 0) return ColourAt(at);
  return at > 0 ? ColourAt(at - 1) : kBlack;
}

void TextStore::BeginStep(bool joinPrevious) {
  if (openSteps_++ == 0) stepStarted_ = joinPrevious && !undo_.empty();
}

void TextStore::EndStep() {
  if (--openSteps_ == 0) stepStarted_ = false;
}

std::optional<Position> TextStore::Undo() {
  if (undo_.empty()) return std::nullopt;
  Step step = std::move(undo_.back());
  undo_.pop_back();
  Position caret = 0;
  for (auto edit = step.rbegin(); edit != step.rend(); ++edit) {
    const char colour = PaletteIndex(InheritedColour(edit->at, std::ssize(edit->inserted)));
    Change({edit->at, edit->inserted, edit->removed, edit != step.rbegin()}, colour);
    caret = edit->at + std::ssize(edit->removed);
  }
  redo_.push_back(std::move(step));
  return caret;
}

std::optional<Position> TextStore::Redo() {
  if (redo_.empty()) return std::nullopt;
  Step step = std::move(redo_.back());
  redo_.pop_back();
  Position caret = 0;
  for (const Edit& edit : step) {
    const char colour = PaletteIndex(InheritedColour(edit.at, std::ssize(edit.removed)));
    Change({edit.at, edit.removed, edit.inserted, &edit != step.data()}, colour);
    caret = edit.at + std::ssize(edit.inserted);
  }
  undo_.push_back(std::move(step));
  return caret;
}

void TextStore::EmptyUndoBuffer() {
  undo_.clear();
  redo_.clear();
  stepStarted_ = false;
}

TextStore::Snapshot TextStore::TakeSnapshot() const {
  return {bytes_, colours_, palette_, undo_, redo_};
}

void TextStore::Restore(Snapshot snapshot) {
  const Position before = Length();
  bytes_ = std::move(snapshot.bytes);
  ++revision_;
  colours_ = std::move(snapshot.colours);
  palette_ = std::move(snapshot.palette);
  undo_ = std::move(snapshot.undo);
  redo_ = std::move(snapshot.redo);
  TellReset(before);
}

}  // namespace tessel
