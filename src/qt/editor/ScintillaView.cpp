#include "qt/editor/ScintillaView.h"

#include <QMetaObject>
#include <QScopedValueRollback>
#include <algorithm>

#include "base/RuntimeError.h"
#include "qt/base/ControlView.h"

namespace tessel {

ScintillaView::ScintillaView(RichTextBox& model, Clipboard& clipboard, QWidget* parent)
    : QsciScintillaBase(parent),
      model_(model),
      clipboard_(clipboard),
      accessibility_(*this),
      document_(*this),
      edits_(document_) {
  SetUp();
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
          [this](int position, int type, const char*, int length) {
            OnModified(position, type, length);
          });
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this] { OnUpdated(); });
  connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this, &ScintillaView::OnColoursNeeded);
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { FitLineNumbers(); });

  model_.Store().SetView(this);
  const auto follow = [this] {
    if (InSight(model_)) BringUpToDate();
  };
  subscriptions_ = {model_.Refresh.Connect(follow), model_.SelectionMoved.Connect(follow),
                    model_.Change.Connect(follow)};
  follow();
}

ScintillaView::~ScintillaView() { model_.Store().SetView(nullptr); }

// --- From the model

void ScintillaView::Replaced(Position at, Position removed, Position inserted) {
  const auto& edit = handedOver_;
  const bool expected =
      edit && edit->at == at && edit->removed == removed && std::ssize(edit->inserted) == inserted;
  if (expected) {
    handedOver_.reset();
    return;
  }
  if (takingOver_ || !InStep() || !edits_.Empty() || !InSight(model_)) {
    textStale_ = true;
    return;
  }
  const QScopedValueRollback guard(applying_, true);
  document_.Replace(at, removed, model_.Bytes().substr(at, inserted));
  ShowLineNumbers();
}

void ScintillaView::Painted(Position at, Position /*length*/) {
  recolourFrom_ = std::min(recolourFrom_.value_or(at), at);
}

void ScintillaView::BringUpToDate() {
  if (takingOver_ || applying_) return;
  if (InStep() && !edits_.Empty()) return;  // TakeOver is about to follow
  const QScopedValueRollback guard(applying_, true);
  if (textStale_) {
    document_.BecomeEqualTo(model_.Bytes());
    recolourFrom_ = 0;  // places noted before the text changed say nothing any more
    ShowLineNumbers();
  }
  textStale_ = false;
  edits_.Forget();
  if (recolourFrom_) document_.ForgetColours(*recolourFrom_);
  recolourFrom_.reset();
  ShowSelection();
  ShowOrHideSelection();
}

void ScintillaView::ShowSelection() {
  const SciPosition start = document_.PositionOf(model_.SelStart());
  const SciPosition end = document_.PositionOf(model_.SelEnd());
  const bool shown =
      SendScintilla(SCI_GETSELECTIONSTART) == start && SendScintilla(SCI_GETSELECTIONEND) == end;
  if (shown) return;
  const QScopedValueRollback guard(applying_, true);
  SendScintilla(SCI_SETSEL, static_cast<unsigned long>(start), end);
}

void ScintillaView::ShowOrHideSelection() {
  const bool hidden = model_.HideSelection() && !hasFocus();
  if (hidden == selectionHidden_) return;
  selectionHidden_ = hidden;
  SendScintilla(SCI_HIDESELECTION, hidden ? 1UL : 0UL);
}

// --- From Scintilla

void ScintillaView::OnModified(int position, int type, int length) {
  if (applying_) return;
  if ((type & SC_MOD_BEFOREINSERT) != 0) edits_.BeforeInsertion(position, length);
  if ((type & SC_MOD_BEFOREDELETE) != 0) edits_.BeforeDeletion(position, length);
  // Not from a key or the mouse: a screen reader's editing, for instance.
  if (hands_ == 0)
    QMetaObject::invokeMethod(
        this, [this] { TakeOver(); }, Qt::QueuedConnection);
}

void ScintillaView::OnUpdated() {
  if (applying_ || takingOver_ || hands_ > 0 || !InStep()) return;
  const bool moved =
      SendScintilla(SCI_GETSELECTIONSTART) != document_.PositionOf(model_.SelStart()) ||
      SendScintilla(SCI_GETSELECTIONEND) != document_.PositionOf(model_.SelEnd());
  // It may come in the middle of a painting: no time to raise events.
  if (moved)
    QMetaObject::invokeMethod(
        this, [this] { TakeOver(); }, Qt::QueuedConnection);
}

void ScintillaView::OnColoursNeeded(SciPosition end) {
  if (applying_ || takingOver_ || !InStep() || !edits_.Empty()) {
    recolourFrom_ = 0;  // the two texts differ for the moment: BringUpToDate makes it ask again
    return;
  }
  const QScopedValueRollback guard(applying_, true);
  document_.ColourUpTo(end, model_.Store());
}

void ScintillaView::ByHand(const std::function<void()>& action, bool typing) {
  if (hands_ == 0) {
    BringUpToDate();
    typing_ = typing;
  }
  ++hands_;
  action();
  --hands_;
  if (hands_ == 0) {
    TakeOver();
    gesture_.reset();
  }
}

void ScintillaView::TakeOver() {
  if (takingOver_ || !InStep()) return;
  {
    const QScopedValueRollback guard(takingOver_, true);
    TakeOverEdits();
    if (InStep()) TakeOverSelection();
  }
  if (!InStep() || hands_ == 0) BringUpToDate();
}

void ScintillaView::TakeOverEdits() {
  if (edits_.Empty()) return;
  const auto edits = edits_.Take();
  if (!edits) {
    textStale_ = true;
    Refuse(tr("A character that cannot be stored in a CON file was not inserted."));
    return;
  }
  if (!gesture_) gesture_.emplace(model_, typing_);
  for (const ScintillaEdit& edit : *edits) {
    handedOver_ = edit;
    try {
      model_.EditByHand(edit.at, edit.removed, edit.inserted);
    } catch (const RuntimeError& error) {
      textStale_ = true;
      Refuse(QString::fromUtf8(error.what()));
    }
    handedOver_.reset();
    if (textStale_) return;  // somebody changed the text meanwhile: these places are void
  }
  if (hands_ == 0) gesture_.reset();
  const QScopedValueRollback guard(applying_, true);
  ShowLineNumbers();
}

void ScintillaView::TakeOverSelection() {
  const auto [start, length] = displayedSelection();
  if (start != model_.SelStart() || length != model_.SelLength()) {
    model_.SelectByHand(start, length);
  }
}

void ScintillaView::Refuse(const QString& explanation) { emit textRefused(explanation); }

}  // namespace tessel
