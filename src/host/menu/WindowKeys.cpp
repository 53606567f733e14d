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

// A box takes back what was typed into it.
constexpr QKeyCombination kOfBoxes[] = {
    Qt::CTRL | Qt::Key_Z,
    Qt::CTRL | Qt::Key_Y,
    Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
};

bool IsOfTheFocus(const QWidget& focus, QKeyCombination keys) {
  const auto has = [keys](const auto& table) {
    return std::ranges::find(table, keys) != std::ranges::end(table);
  };
  const bool isBox = qobject_cast<const ScintillaView*>(&focus) == nullptr;
  return has(kOfTheFocus) || (isBox && has(kOfBoxes));
}

}  // namespace

WindowKeys::WindowKeys(QMainWindow& window) : QObject(&window), window_(window) {
  qApp->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* focus = qobject_cast<const QWidget*>(watched);
  if (focus == nullptr || focus->window() != &window_) return false;
  const auto keys = static_cast<QKeyEvent*>(event)->keyCombination();
  if (IsOfTheFocus(*focus, keys) || !IsOfMenu(QKeySequence(keys))) return false;
  event->ignore();
  return true;
}

bool WindowKeys::IsOfMenu(const QKeySequence& keys) const {
  const auto actions = window_.findChildren<QAction*>();
  return std::ranges::any_of(
      actions, [&](const QAction* action) { return action->shortcuts().contains(keys); });
}

}  // namespace tessel
