// The editor's widget: Scintilla, kept equal to a RichTextBox.
#pragma once

#include <Qsci/qsciscintillabase.h>

#include <QPoint>
#include <optional>
#include <string>
#include <vector>

#include "models/RichTextBox.h"
#include "qt/editor/EditorCommands.h"
#include "qt/editor/EditorKeys.h"
#include "qt/editor/LineNumberMargin.h"
#include "qt/editor/ScintillaMirror.h"
#include "qt/editor/ScintillaViewAccessibility.h"
#include "qt/editor/SelectionOutline.h"
#include "qt/editor/WidgetDocument.h"
#include "services/Services.h"

namespace tessel {

class PreeditLabel;

/// Why and how a text is shown for reading only.
struct Reading {
  QString why;  // a sentence for the user
  /// That many bytes of each line are drawn.
  Position shownOfLines = 0;
};

/// Shows a RichTextBox and lets a person edit it. The text, its colours, the selection and undo
/// live in the model; Scintilla draws them and is edited by keys and mouse, and a mirror tells each
/// side of what happened on the other. Nothing normalizes line ends, and every one of the 256 bytes
/// can be shown, typed (where it has a character), copied and pasted.
///
/// Place, visibility and the enabled state of the widget are its owner's affair. The model and the
/// clipboard must outlive the view; a handler of the model's MouseUp that closes the document has
/// to delete the view later (deleteLater).
class ScintillaView : public QsciScintillaBase {
  Q_OBJECT

 public:
  ScintillaView(RichTextBox& model, Clipboard& clipboard, QWidget* parent = nullptr);

  /// Where a menu asked for by the mouse button or key just released belongs, in global pixels: the
  /// pointer's place, or the caret's when it was a key.
  QPoint popupPosition() const { return popupPosition_; }

  /// A person reads and selects only; what would edit is refused with the sentence. Commands of the
  /// control go on working. Nothing: as usual.
  void SetReading(const std::optional<Reading>& reading);
  const std::optional<Reading>& CurrentReading() const { return reading_; }

  /// True: draws the colours that a fresh colouring of the text would give, kept up while it is
  /// edited, in place of the model's. Model and undo know nothing of it.
  void SetLiveColours(bool live) { mirror_.SetLiveColours(live); }
  bool LiveColours() const { return mirror_.LiveColours(); }

  /// An empty family and the size 0 are the desktop's.
  void SetTextFont(const QString& family, int points);

  /// True: the current line and a hollow caret are drawn also while the focus is elsewhere.
  void ShowCaretAlways(bool always);
  /// So many pixels between the text and the scroll bar are left to others.
  void LeaveAtRight(int pixels) { setViewportMargins(0, 0, pixels, 0); }

  /// From now on the Return key begins a line as the one before begins.
  void KeepIndentation(bool keep) { keepsIndentation_ = keep; }
  /// Replaces a piece of the text as a person does: one edit, one undo step.
  void ReplaceByHand(Position at, Position length, const std::string& bytes) {
    commands_.Replace(at, length, bytes);
  }

  /// Draws a box around the selection until it is called with false, also while the selection is
  /// hidden. The selection stays what it is.
  void OutlineSelection(bool outline) { outline_.Want(outline); }
  /// For reading the screen.
  const SelectionOutline& Outline() const { return outline_; }

  /// For gestures of several keys, and for reading the screen.
  ScintillaMirror& mirror() { return mirror_; }

 signals:
  /// Text that cannot be stored was typed, pasted or dropped, or the text is for reading; nothing
  /// was edited. A sentence for the user.
  void textRefused(const QString& explanation);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
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
  void ListenToScintilla();
  void ListenToParts();
  void ApplyTheme();
  bool CanBreakLine(const QKeyEvent& event) const;
  void Run(EditorCommand command);
  void ShowMenuAtCaret();
  void PasteFromMouse(QPoint at);
  QPoint CaretPoint() const;
  QRect RestingCaret() const;
  void FollowRestingCaret();
  void MarkRestingLine();
  void PaintRestingCaret();
  /// Nothing in the margin.
  std::optional<Position> OffsetAt(QPoint point) const;

  RichTextBox& model_;
  ScintillaViewAccessibility accessibility_;
  WidgetDocument document_;
  ScintillaMirror mirror_;
  EditorCommands commands_;
  LineNumberMargin lineNumbers_;
  SelectionOutline outline_;
  std::vector<Subscription> subscriptions_;
  QPoint popupPosition_;
  std::optional<Reading> reading_;
  bool keepsIndentation_ = false;
  bool caretAlways_ = false;
  QRect restingCaret_;               // where it was drawn last
  PreeditLabel* preedit_ = nullptr;  // made for the first input method
};

}  // namespace tessel
