#include "host/problems/ProblemDock.h"

#include <QCloseEvent>
#include <QSettings>
#include <algorithm>
#include <utility>

namespace tessel {
namespace {

constexpr const char* kProblemsShownKey = "problems/shown";
constexpr const char* kProblemsHeightKey = "problems/height";
constexpr int kUsualHeight = 180;

}  // namespace

ProblemDock::ProblemDock(const ProblemList& problems, ProblemModel::NameOf nameOf,
                         QMainWindow& window)
    : QDockWidget(tr("Problems"), &window),
      window_(window),
      pane_(new ProblemPane(problems, std::move(nameOf), this)) {
  setObjectName("problems");
  setFeatures(DockWidgetClosable);
  setAllowedAreas(Qt::BottomDockWidgetArea);
  setWidget(pane_);
  window_.addDockWidget(Qt::BottomDockWidgetArea, this);
  hide();
}

void ProblemDock::SetShown(bool shown) {
  QSettings().setValue(kProblemsShownKey, shown);
  if (shown != isHidden()) return;
  setVisible(shown);
  if (shown) {
    const int usual = std::min(kUsualHeight, window_.height() / 4);
    window_.resizeDocks({this}, {QSettings().value(kProblemsHeightKey, usual).toInt()},
                        Qt::Vertical);
  }
  emit shownChanged(shown);
}

void ProblemDock::RestoreLook() { SetShown(QSettings().value(kProblemsShownKey, false).toBool()); }

void ProblemDock::closeEvent(QCloseEvent* event) {
  event->ignore();
  SetShown(false);
}

void ProblemDock::resizeEvent(QResizeEvent* event) {
  QDockWidget::resizeEvent(event);
  if (isVisible()) QSettings().setValue(kProblemsHeightKey, height());
}

}  // namespace tessel
