// The tests of the host run without a display.
#include <gtest/gtest.h>

#include <QApplication>

#include "host/language/Translations.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const tessel::Translations english{QLocale(QLocale::English)};  // its plurals
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
