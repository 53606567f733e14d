// The quiet notice that another program has changed the current document's file.
#pragma once

#include <QFileSystemWatcher>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <string>

#include "qt/TesselWidget.h"
#include "safekeeping/DiskState.h"

namespace tessel {

/// A bar above the control. It watches the files of all open documents and shows itself while the
/// current one's has been changed by others: Reload takes the file's text, Keep Mine leaves the
/// document as it is and lets it be saved over the file.
class ChangeNotice : public QFrame {
  Q_OBJECT

 public:
  ChangeNotice(TesselWidget& control, GuardedFiles& files, QWidget* parent);

  /// Looks at the current document's file now.
  void Check();

 private:
  void WatchOpenFiles();
  std::string CurrentPath() const;
  void Reload();
  void KeepMine();

  TesselWidget& control_;
  GuardedFiles& files_;
  QFileSystemWatcher watcher_;
  QTimer settle_;
  QLabel* text_;
  QPushButton* reload_;
  QPushButton* keep_;
};

}  // namespace tessel
