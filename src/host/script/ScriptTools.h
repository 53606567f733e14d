// What the window knows of the scripts in it.
#pragma once

#include <QMainWindow>
#include <QObject>

#include "host/script/Navigator.h"
#include "host/script/OpenScripts.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// The commands that know what the documents of a control say. Each is an action of the window with
/// its keys, and a slot for whoever has another way to it. The control outlives this.
class ScriptTools : public QObject {
  Q_OBJECT

 public:
  ScriptTools(QMainWindow& window, TesselWidget& control);

 public slots:
  void GoToDefinition();
  void GoBack() { navigator_.GoBack(); }
  void GoForward() { navigator_.GoForward(); }

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  OpenScripts scripts_;
  Navigator navigator_;
};

}  // namespace tessel
