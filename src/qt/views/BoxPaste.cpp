#include "qt/views/BoxPaste.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <optional>

#include "qt/base/HeldText.h"
#include "qt/views/ByteValidator.h"

namespace tessel {
namespace {

/// Keys go to the box around a line, and the mouse to the line or to a text's middle.
bool TakesText(const QObject* object) {
  if (const auto* line = qobject_cast<const QLineEdit*>(object)) return !line->isReadOnly();
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(object)) return !text->isReadOnly();
  if (const auto* list = qobject_cast<const QComboBox*>(object)) return list->isEditable();
  return qobject_cast<const QAbstractSpinBox*>(object) != nullptr;
}

QWidget* BoxOf(QObject* object) {
  if (object == nullptr || TakesText(object)) return static_cast<QWidget*>(object);
  auto* text = qobject_cast<QPlainTextEdit*>(object->parent());
  return text != nullptr && text->viewport() == object && TakesText(text) ? text : nullptr;
}

/// What the event makes a box read.
std::optional<QClipboard::Mode> ReadBy(const QEvent& event) {
  switch (event.type()) {
    case QEvent::ContextMenu:  // it offers to paste where there is text
      return QClipboard::Clipboard;
    case QEvent::KeyPress: {
      const auto& key = static_cast<const QKeyEvent&>(event);
      if (key.keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_Insert)) {
        return QClipboard::Selection;
      }
      if (key.matches(QKeySequence::Paste)) return QClipboard::Clipboard;
      return std::nullopt;
    }
    case QEvent::MouseButtonRelease:
      if (static_cast<const QMouseEvent&>(event).button() != Qt::MiddleButton) return std::nullopt;
      return QClipboard::Selection;
    default:
      return std::nullopt;
  }
}

/// Says why nothing can be pasted, if that is so.
bool Refuses(QWidget& box, QClipboard::Mode mode) {
  const QString refusal = ReadHeldText(mode).refusal;
  if (!refusal.isEmpty()) ShowRefusal(box, refusal);
  return !refusal.isEmpty();
}

/// The program that answered when the menu was opened may not answer any more.
void PasteFromMenuWithCare(const QMenu& menu, QWidget& box) {
  for (QAction* action : menu.actions()) {
    if (!action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
    QObject::connect(action, &QAction::triggered, &box, [&box] {
      if (!Refuses(box, QClipboard::Clipboard)) QMetaObject::invokeMethod(&box, "paste");
    });
  }
}

}  // namespace

bool BoxPaste::eventFilter(QObject* watched, QEvent* event) {
  const auto* menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(watched) : nullptr;
  if (QWidget* box = menu != nullptr ? BoxOf(menu->parent()) : nullptr) {
    PasteFromMenuWithCare(*menu, *box);
  }
  const auto mode = ReadBy(*event);
  QWidget* box = mode ? BoxOf(watched) : nullptr;
  if (box == nullptr || !Refuses(*box, *mode)) return false;
  event->accept();
  return true;
}

}  // namespace tessel
