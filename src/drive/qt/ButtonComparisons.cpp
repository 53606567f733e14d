// Buttons, labels and boxes with a text.
#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "drive/qt/ControlComparisons.h"
#include "qt/base/Mnemonics.h"
#include "qt/base/QtText.h"
#include "text/Text.h"

namespace tessel::drive {
namespace {

// A view marks a letter of captions that have no mark.
QString CaptionAs(const Control& model, const QString& shown) {
  const bool marked = model.Caption().find('&') != std::string::npos;
  return marked ? shown : PlainCaption(shown);
}

void CompareButton(const Control& model, bool checked, QWidget& widget, Comparison& comparison) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button == nullptr) return comparison.Note("widget", "a button", "another kind");
  comparison.Expect("caption", ShownText(model.Caption()), CaptionAs(model, button->text()));
  comparison.Expect("value", checked, button->isChecked());
}

QString LinesOf(const QPlainTextEdit& box) {
  QString text = box.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

}  // namespace

void CompareCommandButton(const CommandButton& model, QWidget& widget, Comparison& comparison) {
  CompareButton(model, false, widget, comparison);
}

void CompareCheckBox(const CheckBox& model, QWidget& widget, Comparison& comparison) {
  CompareButton(model, model.Value(), widget, comparison);
}

void CompareOptionButton(const OptionButton& model, QWidget& widget, Comparison& comparison) {
  CompareButton(model, model.Value(), widget, comparison);
}

void CompareLabel(const Label& model, QWidget& widget, Comparison& comparison) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (label == nullptr) return comparison.Note("widget", "a label", "another kind");
  comparison.Expect("caption", ShownText(model.Caption()), CaptionAs(model, label->text()));
}

void CompareTextBox(const TextBox& model, QWidget& widget, Comparison& comparison) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    comparison.Expect("text", ShownText(model.Text()), line->text());
  } else if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
    comparison.Expect("text", ShownText(WithCrLf(model.Text())).remove('\r'), LinesOf(*lines));
  } else {
    comparison.Note("widget", "a text box", "another kind");
  }
}

}  // namespace tessel::drive
