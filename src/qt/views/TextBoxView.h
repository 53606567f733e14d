// Text boxes on the screen: of one line, and of several.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "models/TextBox.h"

namespace tessel {

/// Shows a TextBox of one line. A person who enters it with mouse or keyboard raises GotFocus.
class TextBoxView : public QLineEdit {
  Q_OBJECT

 public:
  TextBoxView(TextBox& model, QWidget* parent);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void Draw();

  TextBox& model_;
  bool selectAllWanted_ = false;
  Subscription refresh_;
  Subscription selectAll_;
};

/// Shows a TextBox of several lines.
class MultiLineTextBoxView : public QPlainTextEdit {
  Q_OBJECT

 public:
  MultiLineTextBoxView(TextBox& model, QWidget* parent);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  QString ExactText() const;
  void TakeText();
  void Draw();

  TextBox& model_;
  Subscription refresh_;
  Subscription selectAll_;
};

}  // namespace tessel
