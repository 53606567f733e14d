// The area that holds the editors.
#pragma once

#include <QFrame>
#include <QPointer>

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
  /// Places an editor's widget as its model says.
  void Place(QWidget& editor, const RichTextBox& model);
  /// Takes an editor's widget out of sight before it goes.
  void Release(QWidget& editor);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PassFocusOn();

  QWidget* inside_;
  QPointer<QWidget> inSight_;
};

}  // namespace tessel
