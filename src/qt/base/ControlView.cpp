#include "qt/base/ControlView.h"

namespace tessel {
namespace {

void MoveFocusOut(QWidget& widget) {
  // The window's own, which it has also while another window is the active one.
  QWidget* focused = widget.window()->focusWidget();
  const bool inside = focused != nullptr && (focused == &widget || widget.isAncestorOf(focused));
  if (inside && widget.parentWidget() != nullptr && !widget.isWindow()) {
    widget.parentWidget()->setFocus(Qt::OtherFocusReason);
  }
}

}  // namespace

void ShowOrHide(QWidget& widget, bool shown) {
  if (shown != widget.isHidden()) return;
  if (!shown) MoveFocusOut(widget);
  widget.setVisible(shown);
}

void EnableOrDisable(QWidget& widget, bool enabled) {
  if (!enabled) MoveFocusOut(widget);
  widget.setEnabled(enabled);
}

bool InSight(const Control& control) { return control.Visible() && control.Left() > kParkedLeft; }

void DrawState(QWidget& widget, const Control& control) {
  ShowOrHide(widget, InSight(control));
  EnableOrDisable(widget, control.Enabled());
}

bool MovedByPerson(Qt::FocusReason reason) {
  return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace tessel
