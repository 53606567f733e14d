#include "qt/panel/FindDialog.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "qt/views/ButtonViews.h"
#include "qt/views/ComboBoxView.h"

namespace tessel {

FindDialog::FindDialog(frmFind& form, WidgetMap& widgets, QWidget* parent)
    : FormDialog(form, widgets, parent) {
  auto* label = Make<LabelView>(form.lblFind, tr("Find What:"));
  auto* text = Make<ComboBoxView>(form.cboFind, tr("Text to find"));
  text->setMinimumWidth(280);
  label->setBuddy(text);
  label->SetMnemonic('w');
  first_ = text;
  auto* word = Make<CheckBoxView>(form.chkFindWholeWord, tr("Find whole word only"));
  auto* matchCase = Make<CheckBoxView>(form.chkMatchCase, tr("Match case"));

  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(8);
  buttons->addWidget(MakeButton(form.cmdFind, tr("Find")));
  buttons->addWidget(MakeButton(form.cmdCancel, tr("Cancel"), 'c'));
  buttons->addStretch();

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->addWidget(label, 0, 0);
  grid->addWidget(text, 0, 1);
  grid->addWidget(word, 1, 1);
  grid->addWidget(matchCase, 2, 1);
  grid->setColumnMinimumWidth(2, 8);
  grid->addLayout(buttons, 0, 3, 3, 1);
  grid->setColumnStretch(1, 1);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tessel
