// The second view with its header.
#pragma once

#include <QFrame>
#include <QLabel>

#include "host/second/SecondText.h"

namespace tessel {

/// A line that says which document it is, with a button that closes, above the text.
class SecondPane : public QFrame {
  Q_OBJECT

 public:
  /// `busy` is SecondText's.
  SecondPane(std::function<bool()> busy, QWidget* parent);

  SecondText& Text() { return *text_; }
  /// The name is cut where there is no room for it; the tip has all of it.
  void SetTitle(const QString& name, const QString& tip);

 signals:
  void closeWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowTitle();

  SecondText* text_;
  QLabel* title_;
  QString name_;
};

}  // namespace tessel
