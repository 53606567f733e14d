// The tests of automation run without a display, on a bus of their own.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QApplication>
#include <QProcess>
#include <csignal>

namespace {

/// The bus of this process: gone with it, however it ends.
class OwnBus {
 public:
  OwnBus() {
    daemon_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    daemon_.setProcessChannelMode(QProcess::SeparateChannels);
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
    while (!daemon_.canReadLine() && daemon_.waitForReadyRead()) {
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
  }
  ~OwnBus() {
    daemon_.kill();
    daemon_.waitForFinished();
  }

 private:
  QProcess daemon_;
};

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const QApplication application(argc, argv);
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const OwnBus bus;
  return RUN_ALL_TESTS();
}
