// The tests of automation run without a display, on a bus of their own.
#include <gtest/gtest.h>

#include <QApplication>

#include "automation/OwnBus.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const QApplication application(argc, argv);
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const tessel::test::OwnBus bus;
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.Address());
  return RUN_ALL_TESTS();
}
