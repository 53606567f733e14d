#include "host/HostAutomation.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <utility>

#include "automation/Automation.h"
#include "automation/BusName.h"
#include "automation/SessionBus.h"

namespace tessel {
namespace {

constexpr const char* kName = "org.zanthman.ZanthManager";

}  // namespace

HostAutomation::HostAutomation(TesselWidget& control, Tell tell) : tell_(std::move(tell)) {
  QString problem;
  const auto bus = SessionBus(problem);
  if (!bus) {
    tell_(tr("Other programs cannot use the control: %1.").arg(problem));
    return;
  }
  offer_ = std::make_unique<Automation>(control, *bus);
  if (!offer_->Problem().isEmpty()) {
    tell_(offer_->Problem());
    return;
  }
  // Whoever finds a name finds the control behind it.
  const auto claim = [&](const QString& name, BusName::WhenTaken whenTaken) {
    auto* claimed = new BusName(*bus, name, whenTaken, this);
    connect(claimed, &BusName::refused, this, tell_);
  };
  claim(kName, BusName::WhenTaken::kWait);
  claim(QString("%1.instance%2").arg(kName).arg(QCoreApplication::applicationPid()),
        BusName::WhenTaken::kRefuse);
  // The program may still be busy with its end.
  connect(qApp, &QGuiApplication::lastWindowClosed, this, &HostAutomation::Withdraw);
}

HostAutomation::~HostAutomation() { Withdraw(); }

void HostAutomation::Withdraw() {
  qDeleteAll(findChildren<BusName*>());
  offer_.reset();
}

}  // namespace tessel
