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

EditorHost::EditorHost(QWidget* parent)
    : QFrame(parent),
      inside_(new QWidget(this)),
      bars_(new QWidget(this)),
      column_(new QVBoxLayout(bars_)) {
  setFocusPolicy(Qt::NoFocus);
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(0);
  bars_->installEventFilter(this);
}

// What gets another parent is hidden.
void EditorHost::ShowAbove(QWidget& bar) {
  const bool shown = !bar.isHidden();
  column_->insertWidget(0, &bar);
  bar.setVisible(shown);
}

bool EditorHost::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) ShareRoom();
  return false;
}

void EditorHost::Place(QWidget& editor, const RichTextBox& model) {
  const bool shown = InSight(model);
  if (shown) {
    wanted_ = PixelGeometry(model, *this);
    inSight_ = &editor;
    PlaceInSight();
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

void EditorHost::PlaceInSight() {
  if (inSight_ == nullptr) return;
  inSight_->setGeometry(column_->isEmpty() ? wanted_ : wanted_.intersected(inside_->rect()));
}

void EditorHost::resizeEvent(QResizeEvent*) { ShareRoom(); }

void EditorHost::ShareRoom() {
  const int border = TwipsToPixels(kBorder, logicalDpiX());
  const QRect room = rect().adjusted(border, border, -border, -border);
  const int bars = column_->isEmpty() ? 0 : column_->totalHeightForWidth(room.width());
  bars_->setGeometry(room.left(), room.top(), room.width(), bars);
  inside_->setGeometry(room.adjusted(0, bars, 0, 0));
  PlaceInSight();
}

void EditorHost::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  painter.setPen(Theme(palette()).Outline());
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tessel
