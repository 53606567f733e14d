// The tests of the Qt platform run without a display. What the code reports as critical fails them.
#include <gtest/gtest.h>

#include <QApplication>

namespace {

QtMessageHandler usual = nullptr;

void FailOnCritical(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtCriticalMsg) ADD_FAILURE() << message.toStdString();
  usual(type, context, message);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  usual = qInstallMessageHandler(FailOnCritical);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
