#include "qt/views/ByteValidator.h"

#include <QToolTip>
#include <QWidget>

#include "qt/base/QtText.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {

QValidator::State ByteValidator::validate(QString& text, int&) const {
  if (BytesOfText(text)) return Acceptable;
  emit refused(RefusalOf(text));
  return Invalid;
}

void ShowRefusal(QWidget& box, const QString& reason) {
  QToolTip::showText(box.mapToGlobal(QPoint(0, box.height())), PlainToolTip(reason), &box);
}

}  // namespace tessel
