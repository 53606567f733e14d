#include "qt/views/ButtonViews.h"

#include <QSignalBlocker>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"

namespace tessel {

CommandButtonView::CommandButtonView(CommandButton& model, QWidget* parent)
    : QPushButton(parent), model_(model) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { model_.Press(); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void CommandButtonView::Draw() {
  setText(ShownText(model_.Caption()));
  DrawState(*this, model_);
}

CheckBoxView::CheckBoxView(CheckBox& model, QWidget* parent) : QCheckBox(parent), model_(model) {
  connect(this, &QCheckBox::clicked, this, [this] { model_.Press(); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void CheckBoxView::Draw() {
  const QSignalBlocker quiet(this);
  setText(ShownText(model_.Caption()));
  setChecked(model_.Value());
  DrawState(*this, model_);
}

OptionButtonView::OptionButtonView(OptionButton& model, QWidget* parent)
    : QRadioButton(parent), model_(model) {
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
  setText(ShownText(model_.Caption()));
  DrawState(*this, model_);
}

}  // namespace tessel
