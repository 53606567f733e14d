// The control's automation interface for other processes.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <memory>

namespace tessel {

class ControlObject;
class TesselWidget;

/// Offers a control to other processes: an object on a D-Bus bus with the interface
/// "Tessel.ucTessel" (methods SetTesselVersion and Convert, signal SettingTextColor). The object is
/// there as long as this and the control live.
///
/// A call does what the same call of the host's would do, on the thread of the user interface, and
/// is answered when that has returned, after the message boxes that it shows. While a command is on
/// its way or a dialog or menu is open it is refused with the error "Tessel.Error.Busy".
///
/// The names by which the host is found on the bus are its own matter (BusName).
class Automation : public QObject {
  Q_OBJECT

 public:
  Automation(TesselWidget& control, const QDBusConnection& bus, QObject* parent = nullptr);
  ~Automation() override;

  /// Where the object is: "/Tessel/ucTessel/1" for the first control that this process offers, and
  /// so on. No number comes twice.
  const QString& Path() const { return path_; }
  /// Why the control is not offered: a sentence for the user; empty when it is.
  const QString& Problem() const { return problem_; }

 private:
  QString path_;
  QString problem_;
  std::unique_ptr<ControlObject> object_;
};

}  // namespace tessel
