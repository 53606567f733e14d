// The line in the status bar that says what a command has done.
#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>

namespace tessel {

/// A sentence, and behind it what can be done about it. Hidden while there is nothing to say.
class ChangeLine : public QWidget {
  Q_OBJECT

 public:
  explicit ChangeLine(QWidget* parent);

  /// The sentence is shown as it stands; assistive technology hears of it.
  void Say(const QString& sentence, bool canShow, bool canUndo);
  void Clear();
  const QString& Sentence() const { return sentence_; }

 signals:
  void showWanted();
  void undoWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QToolButton* AddLink(const QString& caption, void (ChangeLine::*wanted)());
  void FitText();

  QString sentence_;
  QLabel* text_;
  QToolButton* show_;
  QToolButton* undo_;
};

}  // namespace tessel
