#include "qt/base/AccessibleNames.h"

#include <QCoreApplication>
#include <QToolButton>

namespace tessel {

void NameForReaders(QWidget& widget, const QString& name) {
  widget.setAccessibleName(name);
  for (auto* field : widget.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
    field->setAccessibleName(name);
  }
}

void OfferClearing(QLineEdit& field) {
  field.setClearButtonEnabled(true);
  for (auto* button : field.findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
    button->setAccessibleName(QCoreApplication::translate("AccessibleNames", "Clear"));
  }
}

}  // namespace tessel
