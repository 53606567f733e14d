#include "automation/BusAddress.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>

namespace tessel {
namespace {

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";

bool IsOwnSocket(const QByteArray& path) {
  struct stat status = {};
  return ::stat(path.constData(), &status) == 0 && S_ISSOCK(status.st_mode) &&
         status.st_uid == ::getuid();
}

}  // namespace

// Without an address the library would start a bus of its own, which nobody else would find.
bool HasSessionBus() {
  const QByteArray address = qgetenv(kAddress);
  if (!address.isEmpty()) return !address.contains("autolaunch:");
  const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && IsOwnSocket(runtime + "/bus");
}

// No transport has this name, so that a connection fails without a try.
void StartNoSessionBus() {
  if (!HasSessionBus()) qputenv(kAddress, "disabled:");
}

}  // namespace tessel
