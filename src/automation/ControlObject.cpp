#include "automation/ControlObject.h"

#include <QApplication>
#include <QDBusError>

#include "qt/TesselWidget.h"

namespace tessel {
namespace {

constexpr const char* kBusy = "Tessel.Error.Busy";

}  // namespace

ControlObject::ControlObject(TesselWidget& control) : control_(&control) {
  connect(&control, &TesselWidget::statusText, this, &ControlObject::SettingTextColor);
}

/// Answers a call that comes at the wrong time with an error.
bool ControlObject::Refused() const {
  if (control_ == nullptr) {
    sendErrorReply(QDBusError::UnknownObject, tr("The control is gone."));
  } else if (QApplication::activeModalWidget() != nullptr) {
    sendErrorReply(kBusy, tr("A dialog is open. Call again when the user has closed it."));
  } else if (QApplication::activePopupWidget() != nullptr) {
    sendErrorReply(kBusy, tr("A menu is open. Call again when the user has closed it."));
  } else if (control_->Tessel().Running()) {
    sendErrorReply(kBusy,
                   tr("The editor is busy. Call again when the current command has finished."));
  } else {
    return false;
  }
  return true;
}

void ControlObject::SetTesselVersion(const QString& strVersion, const QString& strDefault,
                                     QString& versionAfter, QString& defaultAfter) {
  if (Refused()) return;
  versionAfter = strVersion;
  defaultAfter = strDefault;
  control_->SetTesselVersion(versionAfter, defaultAfter);
}

void ControlObject::SetTesselVersion(const QString& strVersion, QString& versionAfter) {
  QString defaultAfter;
  SetTesselVersion(strVersion, {}, versionAfter, defaultAfter);
}

// The host may take the offer back while a box of the conversion is open: nothing may follow here.
void ControlObject::Convert() {
  if (!Refused()) control_->Tessel().Convert();
}

}  // namespace tessel
