// How many problems there are, in the status bar.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QToolButton>
#include <QWidget>

#include "host/problems/ProblemList.h"

namespace tessel {

/// "3 problems", or the number alone where the bar has little room; a click leads to them. Hidden
/// while there are none.
class ProblemCount : public QWidget {
  Q_OBJECT

 public:
  explicit ProblemCount(QStatusBar& bar);

  void Show(const ProblemList& problems);

 signals:
  void clicked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FitText();

  QStatusBar& bar_;
  QLabel* icon_;
  QToolButton* button_;
  QString text_;
  QString number_;
};

}  // namespace tessel
