// The area that holds the editors.
#pragma once

#include <QFrame>
#include <QPointer>
#include <QVBoxLayout>

#include "models/Control.h"

namespace tessel {

class RichTextBox;

/// Shows picRtb: a sunken area with a line around it. Editors stand on Inside(), in whose
/// coordinates their models' places count. While no editor is in sight, the host keeps the focus
/// for the next one.
class EditorHost : public QFrame {
  Q_OBJECT

 public:
  explicit EditorHost(QWidget* parent);

  QWidget* Inside() { return inside_; }
  /// Puts a bar above the editors, within the line: while it is shown, they are so much lower.
  /// Their models' places do not change. The topmost bar is the last one put there.
  void ShowAbove(QWidget& bar);
  /// Places an editor's widget as its model says.
  void Place(QWidget& editor, const RichTextBox& model);
  /// Takes an editor's widget out of sight before it goes.
  void Release(QWidget& editor);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShareRoom();
  void PlaceInSight();
  void PassFocusOn();

  QWidget* inside_;
  QWidget* bars_;
  QVBoxLayout* column_;
  QPointer<QWidget> inSight_;
  QRect wanted_;  // of the editor in sight, as its model says
};

}  // namespace tessel
