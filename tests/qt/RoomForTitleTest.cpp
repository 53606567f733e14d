// Dialogs can be read, and are seen whole.
#include <gtest/gtest.h>

#include <QInputDialog>
#include <QScreen>
#include <QWidget>

#include "qt/base/RoomForTitle.h"

namespace tessel::test {
namespace {

TEST(RoomForTitle, ADialogIsAsWideAsItsTitle) {
  QInputDialog dialog;
  dialog.setWindowTitle(QString(80, 'W'));
  KeepRoomForTitle(dialog);
  dialog.show();
  EXPECT_GT(dialog.width(), dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()));
}

TEST(RoomForTitle, AWindowIsNoLargerThanItsScreen) {
  const QWidget window;
  const QSize screen = window.screen()->availableSize();
  const QSize large = OnScreen(window, screen + QSize(1, 1));
  EXPECT_LT(large.width(), screen.width());
  EXPECT_LT(large.height(), screen.height());
  EXPECT_EQ(OnScreen(window, {300, 200}), QSize(300, 200));
}

}  // namespace
}  // namespace tessel::test
