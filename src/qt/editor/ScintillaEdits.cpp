#include "qt/editor/ScintillaEdits.h"

#include <utility>

#include "qt/base/Windows1252Qt.h"

namespace tessel {

void ScintillaEdits::ReadInsertion() {
  if (!unread_) return;
  const auto bytes = BytesOfUtf8(text_.Utf8(unread_->at, unread_->length));
  text_.NoteInsertion(unread_->at, unread_->length);
  unread_.reset();
  if (bytes) {
    edits_.back().inserted += *bytes;
  } else {
    refused_ = true;
  }
}

void ScintillaEdits::BeforeInsertion(SciPosition at, SciPosition length) {
  ReadInsertion();
  const Position offset = text_.OffsetOf(at);
  const bool goesOn =
      !edits_.empty() && edits_.back().at + std::ssize(edits_.back().inserted) == offset;
  if (!goesOn) edits_.push_back({offset, 0, {}});
  unread_ = Insertion{at, length};
}

void ScintillaEdits::BeforeDeletion(SciPosition at, SciPosition length) {
  ReadInsertion();
  edits_.push_back({text_.OffsetOf(at), CharactersOfUtf8(text_.Utf8(at, length)), {}});
  text_.NoteDeletion(at, length);
}

std::optional<std::vector<ScintillaEdit>> ScintillaEdits::Take() {
  ReadInsertion();
  auto edits = std::exchange(edits_, {});
  if (std::exchange(refused_, false)) return std::nullopt;
  return edits;
}

void ScintillaEdits::Forget() {
  edits_.clear();
  unread_.reset();
  refused_ = false;
}

}  // namespace tessel
