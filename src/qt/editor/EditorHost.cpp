#include "qt/editor/EditorHost.h"

#include <QPainter>

#include "models/RichTextBox.h"
#include "qt/base/ControlView.h"
#include "qt/base/TwipScale.h"
#include "qt/looks/Theme.h"

namespace tessel {
namespace {

// The layout's formulas leave this much beside an editor on either side.
constexpr Twips kBorder = 30;

}  // namespace

EditorHost::EditorHost(QWidget* parent) : QFrame(parent), inside_(new QWidget(this)) {
  setFocusPolicy(Qt::NoFocus);
}

void EditorHost::Place(QWidget& editor, const RichTextBox& model) {
  const bool shown = InSight(model);
  if (shown) {
    editor.setGeometry(PixelGeometry(model, *this));
    inSight_ = &editor;
  }
  ShowOrHide(editor, shown);
  EnableOrDisable(editor, model.Enabled());
  PassFocusOn();
}

void EditorHost::Release(QWidget& editor) {
  ShowOrHide(editor, false);
  PassFocusOn();
}

// Hiding an editor leaves the focus inside of the host. The next one may be in sight already.
void EditorHost::PassFocusOn() {
  const bool waiting = window()->focusWidget() == inside_;
  if (waiting && inSight_ != nullptr && !inSight_->isHidden()) {
    inSight_->setFocus(Qt::OtherFocusReason);
  }
}

void EditorHost::resizeEvent(QResizeEvent*) {
  const int border = TwipsToPixels(kBorder, logicalDpiX());
  inside_->setGeometry(rect().adjusted(border, border, -border, -border));
}

void EditorHost::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  painter.setPen(Theme(palette()).Outline());
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tessel
