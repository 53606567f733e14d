// What stands behind the widget that programs embed.
#pragma once

#include <memory>
#include <string>

#include "qt/TesselWidget.h"
#include "qt/services/QtDesktop.h"
#include "safekeeping/BackupStore.h"

namespace tessel {

/// A control with the services of the desktop. The widget is taken down before them, so it is
/// destroyed here and not by its parent.
class EmbeddedControl {
 public:
  EmbeddedControl(std::shared_ptr<SettingsStore> settings, const std::string& templateDirectory,
                  const ucTessel::Options& options, QWidget* parent)
      : settings_(std::move(settings)),
        widget_(std::make_unique<TesselWidget>(desktop_.With(*settings_, templateDirectory),
                                               desktop_.widgets, parent, options)) {
    desktop_.files.KeepOldBytesBy(KeepAsBackups(DefaultBackupFolder()));
  }

  TesselWidget& Widget() const { return *widget_; }

 private:
  std::shared_ptr<SettingsStore> settings_;
  QtDesktop desktop_;
  std::unique_ptr<TesselWidget> widget_;
};

}  // namespace tessel
