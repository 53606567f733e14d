// What other programs can do with the window's control.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

namespace tessel {

class Automation;
class TesselWidget;

/// Offers the control on the user's session bus, where the program is found by its names, until the
/// last window has been closed.
class HostAutomation : public QObject {
  Q_OBJECT

 public:
  using Tell = std::function<void(const QString& problem)>;

  /// Problems are told, some of them later.
  HostAutomation(TesselWidget& control, Tell tell);
  ~HostAutomation() override;

 private:
  void Withdraw();

  Tell tell_;
  std::unique_ptr<Automation> offer_;
};

}  // namespace tessel
