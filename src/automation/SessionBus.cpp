#include "automation/SessionBus.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QFileInfo>

namespace tessel {
namespace {

QString Tr(const char* text) { return QCoreApplication::translate("SessionBus", text); }

// Without an address the library would start a bus of its own, which nobody else would find.
bool HasAddress() {
  const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  if (!address.isEmpty()) return !address.startsWith("autolaunch:");
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFileInfo::exists(runtime + "/bus");
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

}  // namespace tessel
