// The field for what is looked for.
#pragma once

#include <QComboBox>

namespace tessel {

/// A field with the last searches in its drop-down (Alt+Down). Enter and Down ask for the next
/// match, Shift+Enter and Up for the one before.
class FindField : public QComboBox {
  Q_OBJECT

 public:
  explicit FindField(QWidget* parent);

  QString Text() const { return currentText(); }
  /// Shows a text, all of it selected, so that the next key replaces it.
  void Offer(const QString& text);
  /// Puts what it shows to the front of the drop-down.
  void Remember();

 signals:
  /// A person has changed the text, or chose one from the drop-down.
  void edited();
  void nextWanted();
  void previousWanted();
  /// A person goes to the field.
  void entered();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& key);
};

}  // namespace tessel
