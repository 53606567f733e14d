// The host's window with a state folder and settings of a test's own.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "host/MainWindow.h"
#include "posix/PosixFiles.h"
#include "qt/base/Mnemonics.h"
#include "safekeeping/BackupStore.h"
#include "support/FakeServices.h"
#include "support/TempDirectory.h"

namespace tessel::test {

/// How long a test waits for what takes the window a moment, in milliseconds.
inline constexpr int kPatience = 30'000;

/// One run of the program: a window, and what stands behind it. Its end is that of a program that
/// is killed, unless the window was closed.
struct HostRun {
  HostRun(const std::string& state, SettingsStore& settings)
      : backups(state + "/backups"), keptFiles(plainFiles, backups), files(keptFiles) {
    plainFiles.KeepOldBytesBy([this](const std::string& path, std::string_view bytes) {
      backups.Keep(PathOfFile(path), bytes);
    });
    plainFiles.SaveOnlyWhere([this] { return files.AsItBegan(); });
    const Services s = fakes.Get();
    const Services services{.messages = s.messages,
                            .fileDialogs = s.fileDialogs,
                            .forms = s.forms,
                            .clipboard = s.clipboard,
                            .settings = settings,
                            .pointer = s.pointer,
                            .files = files,
                            .random = s.random,
                            .focus = s.focus,
                            .loop = s.loop,
                            .hostDirectory = s.hostDirectory};
    window = std::make_unique<MainWindow>(services, widgets, files);
    keptFiles.TellProblems([this](const std::string& problem) { problems.push_back(problem); });
    window->OfferBackups(backups);
    window->show();
    window->StartSession();
    window->KeepUnsavedText(state + "/recovery");
  }

  HostedControls& Controls() { return window->Control().Tessel().Controls(); }
  TabStrip& Tabs() { return Controls().tbsRtb; }
  RichTextBox& Editor(int slot) { return Controls().rtbCon[slot]; }
  void SaveInPlace() { Controls().mnuRtbPopup.Choose("mnuRtbPopupFileSave"); }
  template <class Widget>
  bool Press(const QString& caption) {
    for (auto* part : window->findChildren<Widget*>()) {
      for (auto* button : part->template findChildren<QPushButton*>()) {
        if (PlainCaption(button->text()) != PlainCaption(caption)) continue;
        button->click();
        return true;
      }
    }
    return false;
  }
  QAction* MenuItem(const QString& caption) {
    for (const QAction* title : window->menuBar()->actions()) {
      for (QAction* action : title->menu()->actions()) {
        if (action->text() == caption) return action;
      }
    }
    return nullptr;
  }

  FakeServices fakes;
  PosixFiles plainFiles;
  BackupStore backups;
  BackupFiles keptFiles;
  GuardedFiles files;
  WidgetMap widgets;
  std::vector<std::string> problems;
  std::unique_ptr<MainWindow> window;
};

class HostTest : public testing::Test {
 protected:
  HostTest() {
    ::setenv("XDG_STATE_HOME", (directory_ / "state").c_str(), 1);
    QCoreApplication::setOrganizationName("ZanthMan");
    QCoreApplication::setApplicationName("zanth-manager-test");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(directory_ / "config"));
    run_ = std::make_unique<HostRun>(State(), settings_);
  }

  std::string State() const { return DefaultStateFolder(); }
  HostRun& Run() { return *run_; }
  /// The program is killed, and started again.
  void Restart() {
    run_.reset();
    run_ = std::make_unique<HostRun>(State(), settings_);
  }
  void CloseAndStartAgain() {
    run_->window->close();
    Restart();
  }

  TempDirectory directory_;
  MemorySettingsStore settings_;
  std::unique_ptr<HostRun> run_;
};

}  // namespace tessel::test
