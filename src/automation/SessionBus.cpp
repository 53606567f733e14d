#include "automation/SessionBus.h"

#include <QCoreApplication>
#include <QDBusError>

#include "automation/BusAddress.h"

namespace tessel {
namespace {

QString Tr(const char* text) { return QCoreApplication::translate("SessionBus", text); }

}  // namespace

std::optional<QDBusConnection> SessionBus(QString& problem) {
  if (!HasSessionBus()) {
    problem = Tr("there is no session bus");
    return std::nullopt;
  }
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (bus.isConnected()) return bus;
  problem = Tr("the session bus does not answer (%1)").arg(bus.lastError().message());
  return std::nullopt;
}

}  // namespace tessel
