// The user's session bus.
#pragma once

#include <QDBusConnection>
#include <QString>
#include <optional>

namespace tessel {

/// A connection to the user's session bus; or nothing, with the reason in `problem`. Only a bus
/// that is there already is asked: none is started.
std::optional<QDBusConnection> SessionBus(QString& problem);

}  // namespace tessel
