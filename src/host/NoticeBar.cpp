#include "host/NoticeBar.h"

#include <QPainter>

#include "qt/looks/Theme.h"

namespace tessel {

NoticeBar::NoticeBar(const QString& name, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), row_(new QHBoxLayout(this)) {
  setAccessibleName(name);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  row_->setContentsMargins(8, 4, 8, 4);
  row_->addWidget(text_, 1);
  hide();
}

// A line divides it from the text below.
void NoticeBar::paintEvent(QPaintEvent*) {
  const Theme theme(palette());
  QPainter painter(this);
  painter.fillRect(rect(), theme.Notice());
  painter.setPen(theme.Outline());
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
}

}  // namespace tessel
