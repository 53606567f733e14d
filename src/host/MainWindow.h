// The window of Zanth Manager.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <string>
#include <vector>

#include "host/DiskState.h"
#include "platform/qt/TesselWidget.h"

namespace tessel {

/// A window that the control fills, with a status bar for what the control has to say.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `files` are those of the services.
  MainWindow(const Services& services, WidgetMap& widgets, GuardedFiles& files);

  TesselWidget& Control() { return *control_; }
  /// Opens files as the recent list does.
  void OpenFiles(const std::vector<std::string>& paths);
  /// Shows a sentence in the status bar.
  void ShowNotice(const QString& text);
  /// The window as it was left: its place, and what the toggles of the toolbar say.
  void RestoreLook();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildStatusBar();
  void ShowDocument();
  void ShowCaret();
  void SaveLook();

  TesselWidget* control_;
  QLabel* caret_ = nullptr;
  QLabel* modified_ = nullptr;
};

}  // namespace tessel
