// Boxes take only characters that a file can hold.
#pragma once

#include <QValidator>

namespace tessel {

/// Refuses a text with a character that has no byte: the box keeps what it had. `refused` carries a
/// sentence for the user.
class ByteValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& text, int& caret) const override;

 signals:
  void refused(const QString& reason) const;
};

/// Shows why a box refused a text, at the box.
void ShowRefusal(QWidget& box, const QString& reason);

}  // namespace tessel
