// The control's automation interface for other processes.
#pragma once

#include <Tessel/Export.h>

#include <QObject>
#include <QString>
#include <memory>

class ucTessel;
namespace tessel {
class Automation;
}  // namespace tessel

/// Offers a control on the user's session bus (D-Bus): an object with the interface
/// "Tessel.ucTessel", which has the methods SetTesselVersion (both arguments come back) and Convert
/// and the signal SettingTextColor. The object is there as long as this and the control live.
///
/// A call does what the program's own call would do, and is answered when that has returned. While
/// a command is on its way or a dialog is open it is refused with the error "Tessel.Error.Busy".
///
/// By what name the program is found on the bus is its own matter; QtDBus claims one with
/// QDBusConnection::sessionBus().registerService("org.example.Program").
class TESSEL_EXPORT TesselAutomation : public QObject {
  Q_OBJECT

 public:
  explicit TesselAutomation(ucTessel& control, QObject* parent = nullptr);
  ~TesselAutomation() override;

  /// Where the object is: "/Tessel/ucTessel/1" for the first control that this process offers, and
  /// so on. Empty when there is no bus.
  QString Path() const;
  /// Why the control is not offered: a sentence for the user; empty when it is. No bus is started
  /// where there is none.
  QString Problem() const;

 private:
  std::unique_ptr<tessel::Automation> offer_;
  QString problem_;
};
