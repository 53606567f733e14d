// Keys that are the window's wherever the focus is.
#pragma once

#include <QKeySequence>
#include <QObject>

class QMainWindow;

namespace tessel {

/// Editors have keys of their own, some of which the window has, too: Undo, which they would do
/// step by step. This lets the menu have them. Keys of the clipboard stay with whatever has the
/// focus, and Ctrl+F and F3 with the control.
class WindowKeys : public QObject {
  Q_OBJECT

 public:
  /// Watches the program's events for as long as the window is there.
  explicit WindowKeys(QMainWindow& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsOfMenu(const QKeySequence& keys) const;

  QMainWindow& window_;
};

}  // namespace tessel
