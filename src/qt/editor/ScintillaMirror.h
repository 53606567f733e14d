// A Scintilla document as a mirror of a RichTextBox.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "base/Event.h"
#include "models/RichTextBox.h"
#include "qt/editor/DrawnColours.h"
#include "qt/editor/MirrorState.h"
#include "qt/editor/ScintillaDocument.h"
#include "qt/editor/ScintillaEdits.h"
#include "qt/editor/ScintillaText.h"

namespace tessel {

/// Keeps text, selection and colours of a model and of a Scintilla document equal, whichever side
/// they change on. The model has the last word: where the two cannot be brought together, the
/// document becomes the model's text again.
///
/// While the model is parked or not visible its changes are only noted; the first moment in which
/// it can be seen again brings the document up to date at once. Colours reach the document where it
/// asks for them because it is about to draw, so that a pass over a large text costs no more than
/// what is in sight. Model and document must outlive the mirror.
class ScintillaMirror : private TextStoreView {
  Q_DECLARE_TR_FUNCTIONS(ScintillaMirror)

 public:
  /// The mirror is stale until Follow, Settle or a gesture.
  ScintillaMirror(RichTextBox& model, ScintillaDocument& document);
  ~ScintillaMirror() override;
  ScintillaMirror(const ScintillaMirror&) = delete;
  ScintillaMirror& operator=(const ScintillaMirror&) = delete;

  const RichTextBox& Model() const { return model_; }
  MirrorState State() const { return state_.Now(); }

  // --- What the document announces
  void BeforeInsertion(SciPosition at, SciPosition length);
  void BeforeDeletion(SciPosition at, SciPosition length);
  /// Its selection may have moved.
  void SelectionMayHaveMoved();
  /// It is about to draw.
  void AboutToDraw();
  /// It is about to draw up to `end`.
  void ColoursNeeded(SciPosition end);
  void FocusChanged() { ShowOrHideSelection(); }

  // --- What a person does
  /// Runs one gesture of a person, and then takes its effect over into the model as one undo step.
  /// A gesture inside of another belongs to it. `typing`: it is a key of a run of typing.
  void ByHand(const std::function<void()>& gesture, bool typing = false);
  /// Hands the document's edits so far and its selection to the model. Inside of a gesture: before
  /// the gesture goes on with the model itself.
  void TakeOver();
  /// Edits of the model from here to the end of the gesture are one undo step; so they are already
  /// after an edit of the document.
  void OpenUndoStep(bool typing);
  void CloseUndoStep() { undoStep_.reset(); }

  // --- What others see
  /// Brings the document up to date if the model is in sight.
  void Follow();
  /// Brings both sides together, seen or not.
  void Settle();
  /// The model's offset of a place in the document.
  Position OffsetOf(SciPosition position) const { return text_.OffsetOf(position); }
  /// The place of a model's offset in the document, while the two are in step.
  SciPosition PositionOf(Position offset) const { return text_.PositionOf(offset); }
  /// From now on no more than so many bytes of each line are drawn; nothing: all of them.
  void ShowOfLines(std::optional<Position> bytes) { text_.ShowOfLines(bytes); }
  /// True: what is drawn has the colours that a fresh pass over the text would give, whatever the
  /// model's are. The model stays as it is.
  void SetLiveColours(bool live);
  bool LiveColours() const { return colours_.AreLive(); }
  /// The styles of the text's colours; more may come with each colouring.
  std::span<const int> StylesInUse() const { return text_.Styles().InUse(); }
  Colour ColourOfStyle(int style) const { return text_.Styles().ColourOf(style); }
  bool SelectionHidden() const { return selectionHidden_; }
  void SetTheme(const EditorTheme& theme) { text_.Styles().SetTheme(theme); }

  // --- Another view that draws the same document, somewhere else
  /// True: what is wanted far behind the page of the document's own view is the other's affair.
  void ShareDocument(bool shared) { shared_ = shared; }
  /// Colours what the other view is about to draw.
  void ColourApart(SciRange page);

  /// From there on other colours may have to be drawn than before. In the middle of things.
  Event<Position> Recoloured;
  /// The document's text has changed. In the middle of things: handlers leave both sides alone.
  Event<> TextChanged;
  /// The document was changed by nobody's gesture, maybe in the middle of a painting: no time to
  /// raise the model's events. The owner calls TakeOver soon.
  Event<> TakeOverWanted;
  /// An edit was taken back; a sentence for the user says why.
  Event<const QString&> Refused;

 private:
  // --- From the model
  void Replaced(Position at, Position removed, Position inserted) override;
  void Painted(Position at, Position length) override;
  void RecolourFrom(Position at);
  void FollowColours(Position at, Position removed, Position inserted);
  void CatchUp();
  /// Changes the document; goes from kInStep or kStale to kInStep.
  template <class Change>
  void Show(const Change& change);
  void ColourPageAfterGesture();
  void ShowSelection();
  void ShowOrHideSelection();
  SciRange ModelSelection() const;

  // --- From the document
  void NoteEdit();
  void TakeOverEdits();
  void TakeOverEdit(const ScintillaEdit& edit);
  void TakeOverSelection();
  void EndTakeOver();
  /// The document's text is not the model's any more.
  void NoteStale();
  /// Showing or taking over: who comes now comes from inside of it.
  bool Busy() const;
  void EndBusy(MirrorState next);

  RichTextBox& model_;
  ScintillaDocument& document_;
  ScintillaText text_;
  DrawnColours colours_{model_.Store()};
  ScintillaEdits edits_;  // none while in step
  MirrorStateMachine state_;
  std::optional<Position> recolourFrom_;     // colours changed, from there at the earliest
  const ScintillaEdit* expected_ = nullptr;  // the edit that the model is about to report
  int gestureDepth_ = 0;
  bool gestureTypes_ = false;
  std::optional<RichTextBox::Gesture> undoStep_;
  bool selectionHidden_ = false;
  bool shared_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
