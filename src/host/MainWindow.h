// The window of Zanth Manager.
#pragma once

#include <QMainWindow>
#include <QSplitter>
#include <QTimer>
#include <string>
#include <string_view>
#include <vector>

#include "host/DocumentGuard.h"
#include "host/HostFileDialogs.h"
#include "host/OrphanedText.h"
#include "host/edit/TextCommands.h"
#include "host/find/FindBar.h"
#include "host/history/Histories.h"
#include "host/menu/MainMenu.h"
#include "host/panel/PanelGuard.h"
#include "host/panel/RandomizeEnd.h"
#include "host/preferences/Preferences.h"
#include "host/theme/ProgramTheme.h"
#include "host/view/KeptPlaces.h"
#include "qt/TesselWidget.h"
#include "safekeeping/BackupStore.h"
#include "safekeeping/DiskState.h"

namespace tessel {

class BackupsDialog;
class ChangeNotice;
class ChangeReports;
class FreeLetters;
class KeepingLog;
class Problems;
class RecoveryKeeper;
class ScriptTools;

/// A window that the control fills, with a status bar for what the control has to say.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `files` are those of the services.
  MainWindow(const Services& services, WidgetMap& widgets, GuardedFiles& files);
  ~MainWindow() override;

  TesselWidget& Control() { return *control_; }
  Preferences& Wishes() { return preferences_; }
  ProgramTheme& Colours() { return theme_; }
  /// Opens files as the recent list does.
  void OpenFiles(const std::vector<std::string>& paths);
  /// Shows a sentence in the status bar.
  void ShowNotice(const QString& text);
  /// The window as it was left: its place, and what the toggles of the toolbar say.
  void RestoreLook();

  /// Where the settings store has its file, for who asks about the program.
  void KeepsSettingsIn(const QString& file) { settingsFile_ = file; }
  /// Lets the user look into the backups. They outlive the window.
  void OfferBackups(BackupStore& backups);
  /// Keeps unsaved text in that folder until the window is closed, and offers what is there of runs
  /// that ended otherwise.
  void KeepUnsavedText(const std::string& folder);
  /// Notes when keys come and, once unsaved text is kept, when. It outlives the window.
  void LogTo(KeepingLog& log);
  /// Keeps every unsaved text; false when one could not be kept. May be called wherever an
  /// allocation fails.
  bool KeepTexts();
  /// The program is about to end without asking: keeps every unsaved text and what is open.
  void KeepEverything();
  /// Tells what to do first, if nothing is open: once, at the first start.
  void ShowFirstHint();
  /// Opens the documents of the last run, if the user wants that, and remembers those of this run.
  void StartSession();

 signals:
  /// The user wants other programs to use the control, or does not any more.
  void automationWanted(bool wanted);

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ucTessel::Options ControlOptions();
  void OutlineReplacements();
  void BuildMenu();
  void OfferFileCommands();
  void OfferTextCommands();
  void ShowTitlesOfLevels();
  void OfferProblems(const std::string& hostDirectory);
  void OfferPreferences();
  void OfferHelp();
  void BuildStatusBar();
  void AddNotice(QWidget& notice);
  void ReportChanges();
  void ShowBackups();
  void LimitBackups();
  bool KeepAsBackup(const std::string& path, std::string_view text);
  void RestoreBackup(const Backup& backup);
  void ShowChangesSince(const Backup& backup, BackupsDialog& dialog);
  void ShowDocument();
  void RememberSession();
  void SaveLook();

  Preferences preferences_;
  ProgramTheme theme_{preferences_};
  HostFileDialogs dialogs_;
  DocumentGuard guard_;
  PanelGuard panel_;
  TesselWidget* control_;
  OrphanedText orphans_{control_->Tessel()};
  RandomizeEnd randomizeEnd_{control_->Tessel()};
  Histories histories_{control_->Tessel()};
  KeptPlaces places_{*control_, preferences_};
  GuardedFiles& files_;
  MessageBox& messages_;
  SettingsStore& settings_;
  QSplitter* splitter_ = nullptr;
  MainMenu* menu_ = nullptr;
  FreeLetters* letters_ = nullptr;
  ChangeNotice* changeNotice_ = nullptr;
  FindBar* find_ = nullptr;
  ChangeReports* changes_ = nullptr;
  ScriptTools* script_ = nullptr;
  Problems* problems_ = nullptr;
  BackupStore* backups_ = nullptr;
  RecoveryKeeper* keeper_ = nullptr;
  KeepingLog* log_ = nullptr;
  QString settingsFile_;
  QTimer session_;
  Subscription asking_;
  Subscription wishes_;
  Subscription walked_;
};

}  // namespace tessel
