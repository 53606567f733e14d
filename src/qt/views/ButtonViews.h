// Buttons, check boxes, options and labels on the screen.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "models/Buttons.h"

namespace tessel {

class CommandButtonView : public QPushButton {
  Q_OBJECT

 public:
  CommandButtonView(CommandButton& model, QWidget* parent);

  /// Marks that letter of a caption that has no mark of its own.
  void SetMnemonic(QChar letter);

 private:
  void Draw();

  CommandButton& model_;
  QChar mnemonic_;
  Subscription refresh_;
};

class CheckBoxView : public QCheckBox {
  Q_OBJECT

 public:
  CheckBoxView(CheckBox& model, QWidget* parent);

  /// Marks that letter of a caption that has no mark of its own.
  void SetMnemonic(QChar letter);

 private:
  void Draw();

  CheckBox& model_;
  QChar mnemonic_;
  Subscription refresh_;
};

/// Shows an OptionButton. That one option excludes another is the models' rule: the toolkit's own
/// grouping is off, so that neither of the two may be on.
class OptionButtonView : public QRadioButton {
  Q_OBJECT

 public:
  OptionButtonView(OptionButton& model, QWidget* parent);

 private:
  void Draw();

  OptionButton& model_;
  Subscription refresh_;
};

class LabelView : public QLabel {
  Q_OBJECT

 public:
  LabelView(Label& model, QWidget* parent);

  /// Marks that letter of a caption that has no mark of its own; the label needs a buddy.
  void SetMnemonic(QChar letter);
  /// Assistive technology reads the label's text, and this where there is none.
  void NameWhileEmpty(const QString& name);

 private:
  void Draw();

  Label& model_;
  QChar mnemonic_;
  QString nameWhileEmpty_;
  Subscription refresh_;
};

}  // namespace tessel
