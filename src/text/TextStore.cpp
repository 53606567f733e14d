#include "text/TextStore.h"

#include <algorithm>
#include <cstring>

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
  MakeRoom(length, inserted);
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

void TextStore::MakeRoom(Position length, std::string_view inserted) {
  const std::size_t size = bytes_.size() - static_cast<std::size_t>(length) + inserted.size();
  if (size > bytes_.size()) {
    bytes_.reserve(size);
    colours_.reserve(size);
  }
}

void TextStore::Change(const TextEdit& edit, char colourIndex) {
  const Position length = std::ssize(edit.removed);
  MakeRoom(length, edit.inserted);
  bytes_.replace(edit.at, length, edit.inserted);
  ++revision_;
  colours_.replace(edit.at, length, edit.inserted.size(), colourIndex);
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

Colour TextStore::ColourAt(Position at) const {
  return palette_[static_cast<unsigned char>(colours_[at])];
}

std::optional<Colour> TextStore::UniformColour(Position at, Position length) const {
  if (length == 0) return std::nullopt;
  const char* first = colours_.data() + at;
  // A range is uniform when it equals itself shifted by one.
  if (std::memcmp(first, first + 1, static_cast<std::size_t>(length - 1)) != 0) return std::nullopt;
  return ColourAt(at);
}

void TextStore::Paint(Position at, Position length, Colour colour) {
  const char index = PaletteIndex(colour);
  std::fill_n(colours_.begin() + at, length, index);
  if (view_ != nullptr) view_->Painted(at, length);
}

std::vector<ColourRun> TextStore::Runs(Position at, Position length) const {
  std::vector<ColourRun> runs;
  const Position end = at + length;
  while (at < end) {
    const auto next = static_cast<Position>(
        std::min(colours_.find_first_not_of(colours_[at], at), static_cast<std::size_t>(end)));
    runs.push_back({at, next - at, ColourAt(at)});
    at = next;
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
