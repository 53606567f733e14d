#include "automation/Automation.h"

#include <QDBusError>

#include "automation/ControlObject.h"
#include "qt/TesselWidget.h"

namespace tessel {
namespace {

QString NextPath() {
  static int last = 0;
  return "/Tessel/ucTessel/" + QString::number(++last);
}

}  // namespace

Automation::Automation(TesselWidget& control, const QDBusConnection& bus, QObject* parent)
    : QObject(parent), path_(NextPath()), object_(std::make_unique<ControlObject>(control)) {
  // An object that is destroyed is not on the bus any more.
  connect(&control, &QObject::destroyed, this, [this] { object_.reset(); });
  QDBusConnection offered = bus;
  if (!offered.isConnected()) {
    problem_ = tr("The control is not offered to other programs: there is no bus (%1).")
                   .arg(offered.lastError().message());
  } else if (!offered.registerObject(path_, object_.get(),
                                     QDBusConnection::ExportScriptableContents)) {
    problem_ = tr("The control is not offered to other programs: %1 is taken already.").arg(path_);
  }
}

Automation::~Automation() = default;

}  // namespace tessel
