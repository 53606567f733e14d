#include "qt/editor/ScintillaMirror.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "qt/base/ControlView.h"

namespace tessel {

using enum MirrorState;

ScintillaMirror::ScintillaMirror(RichTextBox& model, ScintillaDocument& document)
    : model_(model), document_(document), text_(document), edits_(text_) {
  model_.Store().SetView(this);
  const auto follow = [this] { Follow(); };
  subscriptions_ = {model_.Refresh.Connect(follow), model_.SelectionMoved.Connect(follow),
                    model_.Change.Connect(follow)};
}

ScintillaMirror::~ScintillaMirror() { model_.Store().SetView(nullptr); }

bool ScintillaMirror::Busy() const {
  return state_.Is(kShowing) || state_.Is(kTakingOver) || state_.Is(kOvertaken);
}

void ScintillaMirror::NoteStale() {
  const MirrorState now = state_.Now();
  if (now == kShowing || now == kTakingOver) state_.ChangeTo(kOvertaken);
  if (now == kInStep || now == kAhead) state_.ChangeTo(kStale);
}

void ScintillaMirror::EndBusy(MirrorState next) {
  state_.ChangeTo(state_.Is(kOvertaken) ? kStale : next);
}

// --- From the model

void ScintillaMirror::Replaced(Position at, Position removed, Position inserted) {
  FollowColours(at, removed, inserted);
  const bool expected = expected_ != nullptr && expected_->at == at &&
                        expected_->removed == removed &&
                        std::ssize(expected_->inserted) == inserted;
  if (expected) {
    expected_ = nullptr;
    return;
  }
  if (!state_.Is(kInStep) || !InSight(model_)) {
    NoteStale();
    return;
  }
  Show([&] {
    text_.Replace(at, removed, model_.Bytes().substr(at, inserted));
    TextChanged.Raise();
  });
}

void ScintillaMirror::Painted(Position at, Position /*length*/) {
  if (!colours_.AreLive()) RecolourFrom(at);
}

void ScintillaMirror::RecolourFrom(Position at) {
  recolourFrom_ = std::min(recolourFrom_.value_or(at), at);
  Recoloured.Raise(at);
}

void ScintillaMirror::FollowColours(Position at, Position removed, Position inserted) {
  if (!InSight(model_)) colours_.Rest();
  if (const auto from = colours_.Follow(at, removed, inserted)) RecolourFrom(*from);
}

void ScintillaMirror::SetLiveColours(bool live) {
  if (live == colours_.AreLive()) return;
  colours_.SetLive(live);
  RecolourFrom(0);
  Follow();
}

void ScintillaMirror::Follow() {
  if (InSight(model_)) CatchUp();
}

void ScintillaMirror::Settle() {
  TakeOver();
  if (state_.Is(kStale) || !InSight(model_)) CatchUp();
}

template <class Change>
void ScintillaMirror::Show(const Change& change) {
  state_.ChangeTo(kShowing);
  try {
    change();
  } catch (...) {
    NoteStale();
    EndBusy(kInStep);
    throw;
  }
  EndBusy(kInStep);
}

// Ahead, TakeOver is about to follow; while busy, what is under way ends by itself.
void ScintillaMirror::CatchUp() {
  const bool stale = state_.Is(kStale);
  if (!stale && !state_.Is(kInStep)) return;
  Show([&] {
    if (stale) {
      text_.BecomeEqualTo(model_.Bytes());
      edits_.Forget();
      recolourFrom_ = 0;  // places noted before the text changed say nothing any more
      TextChanged.Raise();
    }
    if (recolourFrom_) text_.ForgetColours(*recolourFrom_);
    recolourFrom_.reset();
    ShowSelection();
  });
  ShowOrHideSelection();
}

SciRange ScintillaMirror::ModelSelection() const {
  return {text_.PositionOf(model_.SelStart()), text_.PositionOf(model_.SelEnd())};
}

void ScintillaMirror::ShowSelection() {
  const SciRange wanted = ModelSelection();
  if (document_.Selection() != wanted) document_.Select(wanted);
}

void ScintillaMirror::ShowOrHideSelection() {
  const bool hidden = model_.HideSelection() && !document_.HasFocus();
  if (hidden == selectionHidden_) return;
  selectionHidden_ = hidden;
  document_.HideSelection(hidden);
}

// --- From the document

void ScintillaMirror::BeforeInsertion(SciPosition at, SciPosition length) {
  if (state_.Is(kShowing)) return;
  edits_.BeforeInsertion(at, length);
  NoteEdit();
}

void ScintillaMirror::BeforeDeletion(SciPosition at, SciPosition length) {
  if (state_.Is(kShowing)) return;
  edits_.BeforeDeletion(at, length);
  NoteEdit();
}

void ScintillaMirror::NoteEdit() {
  if (!state_.Is(kInStep)) return;
  state_.ChangeTo(kAhead);
  // Not from a key or the mouse: a screen reader's editing, for instance.
  if (gestureDepth_ == 0) TakeOverWanted.Raise();
}

void ScintillaMirror::SelectionMayHaveMoved() {
  if (gestureDepth_ > 0 || !state_.Is(kInStep)) return;
  if (document_.Selection() != ModelSelection()) TakeOverWanted.Raise();
}

void ScintillaMirror::ColoursNeeded(SciPosition end) {
  if (shared_ && text_.IsFarBehindPage(end)) return;
  if (!state_.Is(kInStep)) {
    recolourFrom_ = 0;  // the two texts differ for the moment: CatchUp makes it ask again
    return;
  }
  Show([&] {
    if (colours_.AreLive()) {
      text_.ColourPage(end, model_.Bytes(), colours_);
    } else {
      text_.ColourUpTo(end, model_.Bytes(), colours_);
    }
  });
}

void ScintillaMirror::ColourApart(SciRange page) {
  if (!state_.Is(kInStep)) return;
  Show([&] { text_.ColourApart(page, model_.Bytes(), colours_); });
}

void ScintillaMirror::AboutToDraw() {
  text_.MakeStyles(colours_.Palette());
  if (colours_.AreLive() && state_.Is(kInStep)) text_.AskForPage();
}

// What a person's edit colours anew may be anywhere on the page, where the document draws no more
// than the line.
void ScintillaMirror::ColourPageAfterGesture() {
  if (!colours_.AreLive() || !recolourFrom_ || !state_.Is(kInStep)) return;
  Show([&] {
    text_.Outdate(*recolourFrom_);
    recolourFrom_.reset();
    text_.ColourPage(0, model_.Bytes(), colours_);
  });
}

void ScintillaMirror::ByHand(const std::function<void()>& gesture, bool typing) {
  const auto run = [&] {
    const QScopedValueRollback deeper(gestureDepth_, gestureDepth_ + 1);
    gesture();
  };
  if (gestureDepth_ > 0 || Busy()) {
    run();
    return;
  }
  CatchUp();
  const QScopedValueRollback types(gestureTypes_, typing);
  try {
    run();
    TakeOver();
  } catch (...) {
    CloseUndoStep();
    throw;
  }
  CloseUndoStep();
}

void ScintillaMirror::OpenUndoStep(bool typing) {
  if (!undoStep_) undoStep_.emplace(model_, typing);
}

void ScintillaMirror::TakeOver() {
  if (!state_.Is(kInStep) && !state_.Is(kAhead)) return;
  state_.ChangeTo(kTakingOver);
  try {
    TakeOverEdits();
    if (gestureDepth_ == 0) CloseUndoStep();
    if (state_.Is(kTakingOver)) TakeOverSelection();
  } catch (...) {
    NoteStale();
    EndTakeOver();
    throw;
  }
  EndTakeOver();
  ColourPageAfterGesture();
  if (state_.Is(kStale) || gestureDepth_ == 0) CatchUp();
}

void ScintillaMirror::EndTakeOver() {
  EndBusy(edits_.Empty() ? kInStep : kAhead);
  if (state_.Is(kAhead)) TakeOverWanted.Raise();
}

void ScintillaMirror::TakeOverEdits() {
  if (edits_.Empty()) return;
  const auto edits = edits_.Take();
  if (!edits) {
    NoteStale();
    Refused.Raise(tr("A character that cannot be stored in a CON file was not inserted."));
    return;
  }
  OpenUndoStep(gestureTypes_);
  for (const ScintillaEdit& edit : *edits) {
    TakeOverEdit(edit);
    if (!state_.Is(kTakingOver)) return;  // the text changed meanwhile: these places are void
  }
  TextChanged.Raise();
}

void ScintillaMirror::TakeOverEdit(const ScintillaEdit& edit) {
  const QScopedValueRollback expecting(expected_, &edit);
  try {
    model_.EditByHand(edit.at, edit.removed, edit.inserted);
  } catch (const RuntimeError& error) {
    NoteStale();
    Refused.Raise(QString::fromUtf8(error.what()));
  }
}

void ScintillaMirror::TakeOverSelection() {
  const SciRange shown = document_.Selection();
  const Position start = text_.OffsetOf(shown.start);
  const Position length = text_.OffsetOf(shown.end) - start;
  if (start != model_.SelStart() || length != model_.SelLength()) {
    model_.SelectByHand(start, length);
  }
}

}  // namespace tessel
