// Problems in the open documents: checked, listed, marked and fixed.
#pragma once

#include <QMainWindow>
#include <QObject>
#include <string>
#include <vector>

#include "host/menu/MainMenu.h"
#include "host/problems/LiveCheck.h"
#include "host/problems/ProblemDock.h"
#include "host/problems/ProblemList.h"
#include "host/problems/ProblemMarks.h"
#include "host/script/ScriptTools.h"

namespace tessel {

class ProblemCount;

/// Connects the check with the pane, the marks in the text and the count in the status bar.
class Problems : public QObject {
  Q_OBJECT

 public:
  /// What it uses; all of it outlives it.
  struct Uses {
    TesselWidget& control;
    ScriptTools& script;
    MainMenu& menu;
    Preferences& preferences;
    SettingsStore& settings;
    std::string hostDirectory;
  };
  Problems(QMainWindow& window, const Uses& uses);

  /// What has captions.
  std::vector<QWidget*> Bars();
  /// As the user left it.
  void RestoreLook() { dock_.RestoreLook(); }

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  void ConnectDock();
  void ShowAll();
  void GoTo(const Problem& problem);
  void Fix(const Problem& problem);
  QString NameOf(Slot slot) const;
  QString WhyNotLive() const;

  Uses uses_;
  ProblemList problems_;
  LiveCheck check_;
  ProblemMarks marks_;
  ProblemDock& dock_;
  ProblemCount* count_;
  Subscription replaced_;
};

}  // namespace tessel
