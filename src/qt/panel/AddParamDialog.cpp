#include "qt/panel/AddParamDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "qt/views/ListBoxView.h"
#include "qt/views/TextBoxView.h"

namespace tessel {

AddParamDialog::AddParamDialog(frmAddParam& form, WidgetMap& widgets, QWidget* parent)
    : FormDialog(form, widgets, parent) {
  auto* words = Make<ListBoxView>(form.lstWords, tr("Words"));
  auto* word = Make<TextBoxView>(form.txtParam, tr("Word"));
  auto* parameters = Make<MultiLineTextBoxView>(form.txtParams, tr("Parameters"));
  words->setMinimumSize(180, 220);
  parameters->setMinimumSize(300, 120);

  const auto caption = [this](const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text, this);
    label->setBuddy(buddy);
    return label;
  };
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(8);
  buttons->addWidget(MakeButton(form.cmdNew, tr("New")));
  buttons->addWidget(MakeButton(form.cmdSave, tr("Save")));
  buttons->addWidget(MakeButton(form.cmdDelete, tr("Delete")));
  buttons->addStretch();
  buttons->addWidget(MakeButton(form.cmdExit, tr("Exit")));

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(4);
  grid->addWidget(caption(tr("&Words:"), words), 0, 0);
  grid->addWidget(words, 1, 0, 4, 1);
  grid->addWidget(caption(tr("W&ord:"), word), 0, 1);
  grid->addWidget(word, 1, 1);
  grid->setRowMinimumHeight(2, 6);
  grid->addWidget(caption(tr("&Parameters:"), parameters), 3, 1, Qt::AlignBottom);
  grid->addWidget(parameters, 4, 1);
  grid->addLayout(buttons, 1, 2, 4, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(4, 1);
}

}  // namespace tessel
