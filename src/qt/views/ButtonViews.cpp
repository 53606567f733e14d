#include "qt/views/ButtonViews.h"

#include <QSignalBlocker>

#include "qt/base/ControlView.h"
#include "qt/base/Mnemonics.h"
#include "qt/base/QtText.h"
#include "qt/views/ViewAccessibility.h"

namespace tessel {

CommandButtonView::CommandButtonView(CommandButton& model, QWidget* parent)
    : QPushButton(parent), model_(model) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { model_.Press(); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void CommandButtonView::Draw() {
  setText(WithMnemonic(ShownText(model_.Caption()), mnemonic_));
  DrawState(*this, model_);
}

void CommandButtonView::SetMnemonic(QChar letter) {
  mnemonic_ = letter;
  Draw();
}

CheckBoxView::CheckBoxView(CheckBox& model, QWidget* parent) : QCheckBox(parent), model_(model) {
  connect(this, &QCheckBox::clicked, this, [this] { model_.Press(); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void CheckBoxView::Draw() {
  const QSignalBlocker quiet(this);
  setText(WithMnemonic(ShownText(model_.Caption()), mnemonic_));
  setChecked(model_.Value());
  DrawState(*this, model_);
}

void CheckBoxView::SetMnemonic(QChar letter) {
  mnemonic_ = letter;
  Draw();
}

OptionButtonView::OptionButtonView(OptionButton& model, QWidget* parent)
    : QRadioButton(parent), model_(model) {
  InstallViewAccessibility();
  setAutoExclusive(false);
  connect(this, &QRadioButton::clicked, this, [this] { model_.Press(); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void OptionButtonView::Draw() {
  const QSignalBlocker quiet(this);
  setText(ShownText(model_.Caption()));
  setChecked(model_.Value());
  DrawState(*this, model_);
}

LabelView::LabelView(Label& model, QWidget* parent) : QLabel(parent), model_(model) {
  setTextFormat(Qt::PlainText);
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void LabelView::Draw() {
  setText(WithMnemonic(ShownText(model_.Caption()), mnemonic_));
  if (!nameWhileEmpty_.isEmpty()) setAccessibleName(text().isEmpty() ? nameWhileEmpty_ : QString());
  DrawState(*this, model_);
}

void LabelView::SetMnemonic(QChar letter) {
  mnemonic_ = letter;
  Draw();
}

void LabelView::NameWhileEmpty(const QString& name) {
  nameWhileEmpty_ = name;
  Draw();
}

}  // namespace tessel
