#include "automation/SessionBus.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusError>

namespace tessel {
namespace {

QString Tr(const char* text) { return QCoreApplication::translate("SessionBus", text); }

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";

bool IsOwnSocket(const QByteArray& path) {
  struct stat status = {};
  return ::stat(path.constData(), &status) == 0 && S_ISSOCK(status.st_mode) &&
         status.st_uid == ::getuid();
}

// Without an address the library would start a bus of its own, which nobody else would find.
bool HasAddress() {
  const QByteArray address = qgetenv(kAddress);
  if (!address.isEmpty()) return !address.contains("autolaunch:");
  const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && IsOwnSocket(runtime + "/bus");
}

}  // namespace

std::optional<QDBusConnection> SessionBus(QString& problem) {
  if (!HasAddress()) {
    problem = Tr("there is no session bus");
    return std::nullopt;
  }
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (bus.isConnected()) return bus;
  problem = Tr("the session bus does not answer (%1)").arg(bus.lastError().message());
  return std::nullopt;
}

// No transport has this name, so that a connection fails without a try.
void StartNoSessionBus() {
  if (!HasAddress()) qputenv(kAddress, "disabled:");
}

}  // namespace tessel
