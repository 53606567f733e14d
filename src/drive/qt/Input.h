// Mouse and key events, sent straight to widgets.
#pragma once

#include <QEvent>
#include <QMenu>
#include <QWidget>

namespace tessel::drive {

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button);
/// Presses and releases the left button.
void ClickAt(QWidget& widget, QPoint at);
void SendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Commits text as an input method does: all of it at once.
void SendText(QWidget& widget, const QString& text);
/// Clicks an item of an open menu, opening the sub-menus on the way.
void ChooseAction(QMenu& menu, QAction& action);

}  // namespace tessel::drive
