#include "host/find/ReplaceRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace tessel {

ReplaceRow::ReplaceRow(QGridLayout& grid, int row, QWidget* bar)
    : QObject(bar),
      field_(new QLineEdit(bar)),
      inSelection_(new QCheckBox(tr("Selection onl&y"), bar)) {
  field_->setAccessibleName(tr("Replace by"));
  field_->setObjectName("replacement");
  auto* label = new QLabel(tr("Replace &by:"), bar);
  label->setBuddy(field_);
  inSelection_->setToolTip(tr("Find and replace in what is selected now"));
  parts_ = {label, field_};
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(4);
  AddButton(tr("Repl&ace"), tr("Replace this match and go on (Enter)"), &ReplaceRow::oneWanted,
            *buttons, bar);
  AddButton(tr("Rep&lace All"), tr("Replace all matches of this document"), &ReplaceRow::allWanted,
            *buttons, bar);
  AddButton(tr("In All Docu&ments"), tr("Replace all matches of all open documents"),
            &ReplaceRow::everywhereWanted, *buttons, bar);
  buttons->addWidget(inSelection_);
  buttons->addStretch(1);
  QWidget::setTabOrder(parts_.back(), inSelection_);
  parts_ += inSelection_;
  grid.addWidget(label, row, 0);
  grid.addWidget(field_, row, 1);
  grid.addLayout(buttons, row, 2);
  connect(field_, &QLineEdit::returnPressed, this, &ReplaceRow::oneWanted);
  connect(inSelection_, &QCheckBox::toggled, this, &ReplaceRow::inSelectionToggled);
}

void ReplaceRow::AddButton(const QString& caption, const QString& hint,
                           void (ReplaceRow::*wanted)(), QLayout& row, QWidget* bar) {
  auto* button = new QPushButton(caption, bar);
  button->setAutoDefault(false);
  button->setToolTip(hint);
  connect(button, &QPushButton::clicked, this, wanted);
  row.addWidget(button);
  parts_ += button;
}

void ReplaceRow::SetVisible(bool visible) {
  for (QWidget* part : parts_) part->setVisible(visible);
}

void ReplaceRow::ShowInSelection(bool wanted) {
  const QSignalBlocker quietly(inSelection_);
  inSelection_->setChecked(wanted);
}

}  // namespace tessel
