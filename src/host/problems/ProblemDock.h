// The problems below the text.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

#include "host/problems/ProblemPane.h"

namespace tessel {

/// Has the pane at the bottom of the window, and remembers whether the user wants it and how high
/// it is.
class ProblemDock : public QDockWidget {
  Q_OBJECT

 public:
  /// `problems` outlives this.
  ProblemDock(const ProblemList& problems, ProblemModel::NameOf nameOf, QMainWindow& window);

  ProblemPane& Pane() { return *pane_; }
  void SetShown(bool shown);
  /// As the user left it.
  void RestoreLook();

 signals:
  void shownChanged(bool shown);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QMainWindow& window_;
  ProblemPane* pane_;
};

}  // namespace tessel
