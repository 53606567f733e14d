#include "host/menu/WindowKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <algorithm>

#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

constexpr QKeyCombination kOfTheFocus[] = {
    Qt::CTRL | Qt::Key_X, Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_V,
    Qt::CTRL | Qt::Key_A, Qt::CTRL | Qt::Key_F, QKeyCombination(Qt::Key_F3),
};

}  // namespace

WindowKeys::WindowKeys(QMainWindow& window) : QObject(&window), window_(window) {
  qApp->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* view = qobject_cast<ScintillaView*>(watched);
  if (view == nullptr || view->window() != &window_) return false;
  const auto keys = static_cast<QKeyEvent*>(event)->keyCombination();
  if (std::ranges::find(kOfTheFocus, keys) != std::ranges::end(kOfTheFocus)) return false;
  if (!IsOfMenu(QKeySequence(keys))) return false;
  event->ignore();
  return true;
}

bool WindowKeys::IsOfMenu(const QKeySequence& keys) const {
  const auto actions = window_.findChildren<QAction*>();
  return std::ranges::any_of(
      actions, [&](const QAction* action) { return action->shortcuts().contains(keys); });
}

}  // namespace tessel
