#include "drive/qt/Input.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace tessel::drive {
namespace {

/// The menus from `menu` down to the one that holds the action; empty when none does.
QList<QMenu*> WayTo(QMenu& menu, const QAction& action) {
  for (QAction* item : menu.actions()) {
    if (item == &action) return {&menu};
    if (item->menu() == nullptr) continue;
    const QList<QMenu*> rest = WayTo(*item->menu(), action);
    if (!rest.isEmpty()) return QList<QMenu*>{&menu} + rest;
  }
  return {};
}

}  // namespace

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button) {
  const bool held = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
  QMouseEvent event(type, at, widget.mapToGlobal(QPointF(at)), button,
                    held ? Qt::MouseButtons(button) : Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void ClickAt(QWidget& widget, QPoint at) {
  const QPointer<QWidget> alive(&widget);
  SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
  if (alive) SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton);
}

void SendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWidget> alive(&widget);
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (!alive) return;
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(&widget, &event);
  }
}

void SendText(QWidget& widget, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&widget, &event);
}

void ChooseAction(QMenu& menu, QAction& action) {
  const QList<QMenu*> way = WayTo(menu, action);
  for (qsizetype i = 0; i + 1 < way.size(); ++i) way[i]->setActiveAction(way[i + 1]->menuAction());
  QMenu& last = way.isEmpty() ? menu : *way.last();
  if (!last.isVisible()) last.popup(menu.pos());
  ClickAt(last, last.actionGeometry(&action).center());
  menu.close();
}

}  // namespace tessel::drive
