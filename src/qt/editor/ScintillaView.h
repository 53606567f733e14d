// The editor's widget: Scintilla as a mirror of a RichTextBox.
#pragma once

#include <Qsci/qsciscintillabase.h>

#include <QPoint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "models/RichTextBox.h"
#include "qt/editor/ScintillaEdits.h"
#include "qt/editor/ScintillaText.h"
#include "qt/editor/ScintillaViewAccessibility.h"
#include "services/Services.h"

class QLabel;

namespace tessel {

/// Shows a RichTextBox and lets a person edit it. The text, its colours, the selection and undo
/// live in the model; Scintilla draws them and is edited by keys and mouse, and each side is told
/// of what happened on the other. Nothing normalizes line ends, and every one of the 256 bytes can
/// be shown, typed (where it has a character), copied and pasted.
///
/// While the model is parked or not visible its changes are only noted; the first moment in which
/// it can be seen again brings the widget up to date at once. Colours reach the widget where it is
/// about to draw them, so that a pass over a large text costs no more than what is in sight. Place,
/// visibility and the enabled state of the widget are its owner's affair. The model and the
/// clipboard must outlive the view; a handler of the model's MouseUp that closes the document has
/// to delete the view later (deleteLater).
class ScintillaView : public QsciScintillaBase, private TextStoreView {
  Q_OBJECT

 public:
  ScintillaView(RichTextBox& model, Clipboard& clipboard, QWidget* parent = nullptr);
  ~ScintillaView() override;

  /// Where a menu asked for by the mouse button or key just released belongs, in global pixels: the
  /// pointer's place, or the caret's when it was a key.
  QPoint popupPosition() const { return popupPosition_; }

  // --- For a driver that plays a person and looks at the screen. They read the widget.
  /// Sends a key press and release for each character, and Return for a line end of the kind that
  /// it inserts; what no key makes (a control character, another line end) comes as from an input
  /// method, so that exactly this text arrives. One undo step.
  void typeText(const QString& text);
  QByteArray displayedBytes();
  /// Start and length in bytes.
  std::pair<Position, Position> displayedSelection();
  /// True when the selection is painted now.
  bool selectionShown() const { return !selectionHidden_; }
  /// The maximal runs of one colour, by the model's colours; black ones too.
  std::vector<ColourRun> displayedColours();

 signals:
  /// Text that cannot be stored was typed, pasted or dropped; nothing was inserted. A sentence for
  /// the user.
  void textRefused(const QString& explanation);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;
  QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

 private:
  struct KeyCommand;
  static const std::vector<KeyCommand>& KeyCommands();

  // --- From the model (TextStoreView and its events)
  void Replaced(Position at, Position removed, Position inserted) override;
  void Painted(Position at, Position length) override;
  bool InStep() const { return !textStale_; }
  void BringUpToDate();
  void ShowSelection();
  void ShowOrHideSelection();
  void ShowLineNumbers();
  void FitLineNumbers();

  // --- From Scintilla
  void OnModified(int position, int type, int length);
  void OnUpdated();
  void OnColoursNeeded(SciPosition end);
  /// Runs what a person did in the widget and takes its effect over into the model.
  void ByHand(const std::function<void()>& action, bool typing = false);
  /// Hands collected edits and the selection to the model.
  void TakeOver();
  void TakeOverEdits();
  void TakeOverSelection();
  void Refuse(const QString& explanation);

  // --- Commands
  void Insert(const std::string& bytes, bool typing);
  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  void LeaveForwards();
  void LeaveBackwards();
  void ShowMenuAtCaret();
  /// The break that the Return key inserts: the first one of the text, else CR LF.
  std::string_view LineEndOfText() const;
  void UseLineEndOfText();
  void MoveCaretForMenu(QPoint at);
  void PasteFromMouse(QPoint at);
  void Drop(Position at, const std::string& bytes, bool moving);
  void ShowPreedit(const QString& text);
  std::optional<Position> OffsetAt(QPoint point) const;
  QPoint CaretPoint() const;

  // --- Looks
  void SetUp();
  void UnbindKeys();
  void SetUpFont();
  void ApplyTheme();

  RichTextBox& model_;
  Clipboard& clipboard_;
  ScintillaViewAccessibility accessibility_;
  ScintillaText document_;
  ScintillaEdits edits_;
  std::vector<Subscription> subscriptions_;

  bool textStale_ = true;
  std::optional<Position> recolourFrom_;     // colours changed, from there at the earliest
  bool applying_ = false;                    // the widget is being changed by code
  std::optional<ScintillaEdit> handedOver_;  // the edit that the model is being told of
  bool takingOver_ = false;
  int hands_ = 0;
  bool typing_ = false;
  std::optional<RichTextBox::Gesture> gesture_;
  bool selectionHidden_ = false;
  QPoint popupPosition_;
  qsizetype digits_ = 0;  // of the line numbers
  QLabel* preedit_ = nullptr;
};

}  // namespace tessel
