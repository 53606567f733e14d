// A bus that is there for the tests only.
#pragma once

#include <sys/prctl.h>

#include <QProcess>
#include <csignal>

namespace tessel::test {

/// Gone with this process, however it ends.
class OwnBus {
 public:
  OwnBus() {
    daemon_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    daemon_.setProcessChannelMode(QProcess::SeparateChannels);
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
    while (!daemon_.canReadLine() && daemon_.waitForReadyRead()) {
    }
    address_ = daemon_.readLine().trimmed();
  }
  ~OwnBus() { Kill(); }
  OwnBus(const OwnBus&) = delete;
  OwnBus& operator=(const OwnBus&) = delete;

  const QByteArray& Address() const { return address_; }
  void Kill() {
    daemon_.kill();
    daemon_.waitForFinished();
  }

 private:
  QProcess daemon_;
  QByteArray address_;
};

}  // namespace tessel::test
