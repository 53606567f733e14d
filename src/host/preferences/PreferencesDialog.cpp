#include "host/preferences/PreferencesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

namespace tessel {
namespace {

/// A list that drops down has rows as the other lists: the toolkit's own delegate draws lower ones.
QComboBox* MakeChoiceBox(QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setItemDelegate(new QStyledItemDelegate(box));
  return box;
}

}  // namespace

PreferencesDialog::PreferencesDialog(Preferences& preferences, QWidget* parent)
    : QDialog(parent), preferences_(preferences) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Preferences"));
  setMinimumWidth(fontMetrics().horizontalAdvance('x') * 56);  // the title, with the program's name
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  column->addLayout(form);
  AddChoice(*form, tr("&Theme:"), Wish::kTheme, {tr("As the desktop"), tr("Light"), tr("Dark")});
  AddFont(*form);
  AddNumber(*form, tr("Tab &width:"), Wish::kTabWidth, 1, 16);
  AddNumber(*form, tr("Bac&kups of each file:"), Wish::kBackups, 1, kMostBackupsOfAFile);
  AddSwitch(*form, tr("&Live colours"), Wish::kLiveColours);
  AddSwitch(*form, tr("&Check for problems while typing"), Wish::kLiveCheck);
  AddSwitch(*form, tr("W&rap long lines"), Wish::kWordWrap);
  AddSwitch(*form, tr("Show &blanks"), Wish::kShowBlanks);
  AddSwitch(*form, tr("R&uler at column 80"), Wish::kRuler);
  AddSwitch(*form, tr("Words on the t&oolbar"), Wish::kButtonWords);
  AddSwitch(*form, tr("Reopen &documents at start"), Wish::kReopen);
  AddSwitch(*form, tr("Allow auto&mation by other programs"), Wish::kAutomation);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
}

void PreferencesDialog::AddChoice(QFormLayout& form, const QString& label, Wish wish,
                                  const QStringList& choices) {
  QComboBox* box = MakeChoiceBox(this);
  box->addItems(choices);
  box->setCurrentIndex(preferences_.Number(wish));
  connect(box, &QComboBox::currentIndexChanged, this,
          [this, wish](int index) { preferences_.Set(wish, index); });
  form.addRow(label, box);
}

// The first entry stands for the desktop's own font.
void PreferencesDialog::AddFont(QFormLayout& form) {
  QComboBox* family = MakeChoiceBox(this);
  family->addItem(tr("As the desktop"), QString());
  for (const QString& name : QFontDatabase::families()) {
    if (QFontDatabase::isFixedPitch(name)) family->addItem(name, name);
  }
  const QString wished = QString::fromStdString(preferences_.Text(Wish::kFont));
  family->setCurrentIndex(std::max(0, family->findData(wished)));
  connect(family, &QComboBox::currentIndexChanged, this, [this, family] {
    preferences_.Set(Wish::kFont, family->currentData().toString().toStdString());
  });
  form.addRow(tr("&Font:"), family);
  auto* size = new QSpinBox(this);
  size->setRange(0, 72);
  size->setSpecialValueText(tr("As the desktop"));
  size->setSuffix(tr(" pt"));
  size->setValue(preferences_.Number(Wish::kFontSize));
  connect(size, &QSpinBox::valueChanged, this,
          [this](int points) { preferences_.Set(Wish::kFontSize, points); });
  form.addRow(tr("Font &size:"), size);
}

void PreferencesDialog::AddNumber(QFormLayout& form, const QString& label, Wish wish, int least,
                                  int most) {
  auto* box = new QSpinBox(this);
  box->setRange(least, most);
  box->setValue(preferences_.Number(wish));
  connect(box, &QSpinBox::valueChanged, this,
          [this, wish](int value) { preferences_.Set(wish, value); });
  form.addRow(label, box);
}

void PreferencesDialog::AddSwitch(QFormLayout& form, const QString& caption, Wish wish) {
  auto* box = new QCheckBox(caption, this);
  box->setChecked(preferences_.Wants(wish));
  connect(box, &QCheckBox::toggled, this,
          [this, wish](bool wanted) { preferences_.Set(wish, wanted ? 1 : 0); });
  form.addRow(box);
}

}  // namespace tessel
