// The tests of the library run without a display or a bus, and with settings of their own.
#include <gtest/gtest.h>

#include <QApplication>

#include "support/TempDirectory.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const tessel::test::TempDirectory home;
  qputenv("ZANTHMAN_STORE", (home / "settings.db").c_str());
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  std::filesystem::permissions(home.Path(), std::filesystem::perms::owner_all);
  qputenv("XDG_RUNTIME_DIR", home.Path().c_str());
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
