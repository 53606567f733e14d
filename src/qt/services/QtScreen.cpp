#include "qt/services/QtScreen.h"

#include <QApplication>

namespace tessel {

void QtScreenPointer::SetShape(PointerShape shape) {
  if (shape == shape_) return;
  shape_ = shape;
  if (qApp == nullptr) return;
  if (shape == PointerShape::kHourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void QtFocus::MoveTo(Control& control) {
  if (QWidget* widget = widgets_.Find(control)) widget->setFocus(Qt::OtherFocusReason);
}

void QtMessageLoop::DoEvents() { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace tessel
