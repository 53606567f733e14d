#include "qt/editor/PreeditLabel.h"

namespace tessel {

PreeditLabel::PreeditLabel(QWidget* parent) : QLabel(parent) {
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setTextFormat(Qt::PlainText);
  hide();
}

void PreeditLabel::Show(const QString& text, const QFont& font, QPoint at) {
  QFont underlined = font;
  underlined.setUnderline(true);
  setFont(underlined);
  setText(text);
  adjustSize();
  move(at);
  setVisible(!text.isEmpty());
}

}  // namespace tessel
