#include "qt/services/DialogOwner.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>

namespace tessel {

// A command may come from another process, which has the active window then.
QWidget* DialogOwner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto it = std::ranges::find_if(windows, [](const QWidget* window) {
    return window->isVisible() && window->windowType() == Qt::Window;
  });
  return it == windows.end() ? nullptr : *it;
}

}  // namespace tessel
