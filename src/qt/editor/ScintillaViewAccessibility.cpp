#include "qt/editor/ScintillaViewAccessibility.h"

#include <Qsci/qsciscintillabase.h>

#include <QAccessibleWidget>
#include <set>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

// Qt tells of an activation before, on some platforms, it admits to it.
bool readerActive = false;

std::set<const QObject*>& Served() {
  static std::set<const QObject*> widgets;
  return widgets;
}

QAccessibleInterface* PlainInterface(const QString& /*className*/, QObject* object) {
  if (readerActive) return nullptr;  // QScintilla's own is asked next
  if (!Served().contains(object)) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::EditableText);
}

void InstallPlainInterface() {
  static const bool installed = [] {
    QAccessible::installFactory(PlainInterface);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace

ScintillaViewAccessibility::ScintillaViewAccessibility(QsciScintillaBase& widget)
    : widget_(widget) {
  InstallPlainInterface();
  Served().insert(&widget_);
  QAccessible::installActivationObserver(this);
  readerActive = readerActive || QAccessible::isActive();
  ChooseNotifications(readerActive);
}

ScintillaViewAccessibility::~ScintillaViewAccessibility() {
  QAccessible::removeActivationObserver(this);
  Served().erase(&widget_);
}

void ScintillaViewAccessibility::accessibilityActiveChanged(bool active) {
  readerActive = active;
  ChooseNotifications(active);
  // The next query makes the object that fits.
  if (auto* old = QAccessible::queryAccessibleInterface(&widget_)) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(old));
  }
}

void ScintillaViewAccessibility::ChooseNotifications(bool active) {
  unsigned long events = Sci::SC_MOD_BEFOREINSERT | Sci::SC_MOD_BEFOREDELETE;
  if (active) events |= Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT;
  widget_.SendScintilla(Sci::SCI_SETMODEVENTMASK, events);
}

}  // namespace tessel
