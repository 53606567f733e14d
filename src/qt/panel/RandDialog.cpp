#include "qt/panel/RandDialog.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "qt/views/ButtonViews.h"
#include "qt/views/ComboBoxView.h"

namespace tessel {

RandDialog::RandDialog(frmRand& form, WidgetMap& widgets, QWidget* parent)
    : FormDialog(form, widgets, parent) {
  auto* heading = Make<LabelView>(form.lblRange, tr("Select Numeric Range"));
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  auto* lowerLabel = Make<LabelView>(form.lblLower, tr("Lower Bounds"));
  auto* upperLabel = Make<LabelView>(form.lblUpper, tr("Upper Bounds"));
  auto* lower = Make<ComboBoxView>(form.cmbChoose[0], tr("Lower bounds"));
  auto* upper = Make<ComboBoxView>(form.cmbChoose[1], tr("Upper bounds"));
  lowerLabel->setBuddy(lower);
  upperLabel->setBuddy(upper);
  lowerLabel->SetMnemonic('l');
  upperLabel->SetMnemonic('u');
  first_ = lower;

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  auto* keepLower = Make<CheckBoxView>(form.chkLvLw, tr("Leave lower values as they are"));
  auto* keepUpper = Make<CheckBoxView>(form.chkLvUp, tr("Leave higher values as they are"));
  keepLower->SetMnemonic('i');
  keepUpper->SetMnemonic('g');
  buttons->addWidget(MakeButton(form.cmdOk, tr("OK"), 'o'));
  buttons->addWidget(MakeButton(form.cmdCancel, tr("Cancel"), 'c'));

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(6);
  grid->addWidget(heading, 0, 0, 1, 2);
  grid->setRowMinimumHeight(1, 4);
  grid->addWidget(lowerLabel, 2, 0);
  grid->addWidget(upperLabel, 2, 1);
  grid->addWidget(lower, 3, 0);
  grid->addWidget(upper, 3, 1);
  grid->setRowMinimumHeight(4, 6);
  grid->addWidget(keepLower, 5, 0, 1, 2);
  grid->addWidget(keepUpper, 6, 0, 1, 2);
  grid->setRowMinimumHeight(7, 10);
  grid->addLayout(buttons, 8, 0, 1, 2);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tessel
