// A text that is shown a second time.
#pragma once

#include <Qsci/qsciscintillabase.h>

#include <QPointer>
#include <QTimer>
#include <functional>
#include <vector>

#include "qt/editor/LineNumberMargin.h"
#include "qt/editor/ScintillaView.h"
#include "qt/editor/ScintillaViewAccessibility.h"
#include "qt/editor/WidgetDocument.h"

namespace tessel {

/// Draws the document of an editor's view, which holds the text for both, with its colours. It
/// scrolls, selects and copies by itself, and a person edits nothing in it.
class SecondText : public QsciScintillaBase {
  Q_OBJECT

 public:
  /// `busy` says when the text is on its way to another one.
  SecondText(std::function<bool()> busy, QWidget* parent);
  ~SecondText() override;

  /// From now on that view's document, from its start; null: an empty one. The view may go before
  /// this does.
  void Show(ScintillaView* first);

  /// An empty family and the size 0 are the desktop's.
  void SetTextFont(const QString& family, int points);

  /// The line at the top, from 0. Where the text was wrapped it is the line that this is a part of.
  long TopLine() const;
  void ScrollTo(long line);

 signals:
  /// Somebody tried to edit.
  void editRefused();
  void focused();
  /// The user wants to go on in the editor.
  void left();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

 private:
  void Follow(ScintillaView& first);
  void CatchUp();
  void ApplyTheme();
  /// What has other colours is drawn again.
  void Recolour();
  void PaintNewStyles();
  void Run(EditorCommand command);

  std::function<bool()> busy_;
  QPointer<ScintillaView> first_;
  ScintillaViewAccessibility accessibility_;
  WidgetDocument document_;
  LineNumberMargin lineNumbers_;
  QTimer catchUp_;
  QTimer recolour_;
  std::size_t stylesPainted_ = 0;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
