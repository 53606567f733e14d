#include <Tessel/TesselAutomation.h>
#include <Tessel/ucTessel.h>

#include "automation/Automation.h"
#include "automation/SessionBus.h"

TesselAutomation::TesselAutomation(ucTessel& control, QObject* parent) : QObject(parent) {
  QString reason;
  const auto bus = tessel::SessionBus(reason);
  if (!bus) {
    problem_ = tr("The control is not offered to other programs: %1.").arg(reason);
    return;
  }
  offer_ = std::make_unique<tessel::Automation>(control.Inside(), *bus);
  problem_ = offer_->Problem();
}

TesselAutomation::~TesselAutomation() = default;

QString TesselAutomation::Path() const { return offer_ == nullptr ? QString() : offer_->Path(); }
QString TesselAutomation::Problem() const { return problem_; }
