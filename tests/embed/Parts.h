// Looks into the control as a person does.
#pragma once

#include <Tessel/ucTessel.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QScopeGuard>
#include <QString>
#include <QTest>
#include <string>

namespace tessel::test {

/// Types into what has the focus when the control is given it.
inline void TypeIntoEditor(QWidget& control, const QString& text) {
  control.show();
  control.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
  control.setFocus();
  QTest::keyClicks(QApplication::focusWidget(), text);
}

/// The text of the editor in sight, as a screen reader reads it.
inline std::string TextInSight(const QWidget& control) {
  QAccessible::setActive(true);
  const auto off = qScopeGuard([] { QAccessible::setActive(false); });
  for (auto* part : control.findChildren<QWidget*>()) {
    if (part->accessibleName() != "Editor" || !part->isVisibleTo(&control)) continue;
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(part);
    QAccessibleTextInterface* text = reader == nullptr ? nullptr : reader->textInterface();
    if (text == nullptr) break;
    return text->text(0, text->characterCount()).toStdString();
  }
  ADD_FAILURE() << "no text in sight";
  return {};
}

}  // namespace tessel::test
