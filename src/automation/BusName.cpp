#include "automation/BusName.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tessel {
namespace {

// Of the method RequestName of every bus.
constexpr uint kDoNotQueue = 4;
constexpr uint kExists = 3;

}  // namespace

BusName::BusName(const QDBusConnection& bus, const QString& name, WhenTaken whenTaken,
                 QObject* parent)
    : QObject(parent), bus_(bus), name_(name) {
  QDBusMessage request = Ask("RequestName");
  request << name_ << (whenTaken == WhenTaken::kWait ? 0U : kDoNotQueue);
  auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(request), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<uint> reply = *answer;
    if (reply.isError()) {
      emit refused(tr("The bus does not give the name %1: %2").arg(name_, reply.error().message()));
    } else if (reply.value() == kExists) {
      emit refused(tr("The name %1 on the bus is taken by another program.").arg(name_));
    }
    answer->deleteLater();
  });
}

BusName::~BusName() { bus_.send(Ask("ReleaseName") << name_); }

QDBusMessage BusName::Ask(const char* method) const {
  return QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                        "org.freedesktop.DBus", method);
}

}  // namespace tessel
