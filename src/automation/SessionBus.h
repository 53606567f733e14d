// The user's session bus.
#pragma once

#include <QDBusConnection>
#include <QString>
#include <optional>

namespace tessel {

/// A connection to the user's session bus; or nothing, with the reason in `problem`. Only a bus
/// that is there already is asked: none is started.
std::optional<QDBusConnection> SessionBus(QString& problem);

/// Where there is no session bus, sees to it that nothing in this process starts one: the toolkit
/// would do so for its own purposes. To be called before the application object is made.
void StartNoSessionBus();

}  // namespace tessel
