// Tells the user what a command has done, and offers to show it and to take it back.
#pragma once

#include <QStatusBar>
#include <optional>
#include <string>
#include <vector>

#include "host/changes/ChangeLine.h"
#include "host/changes/ChangeReport.h"
#include "host/history/Histories.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// One line in the status bar after a command that has changed texts. It hears of the control's
/// own commands by itself; the window tells of its own. The numbers come from the texts before and
/// after, which are compared on another thread. The line is there until one of its documents
/// changes, another one comes to the front, or there is something else to say: so Undo, which goes
/// through the history, always meets the step of that command.
class ChangeReports : public QObject {
  Q_OBJECT

 public:
  /// All outlive this, and `histories` was made before it.
  ChangeReports(QStatusBar& bar, TesselWidget& control, Histories& histories);

  /// A run of the randomizer is about to end.
  void Randomizing() { randomized_ = true; }
  /// The newest step of the document in front is that of a command which changes lines.
  void LinesChanged();
  void Replaced(std::size_t count, const std::vector<Slot>& documents);
  /// The document in front was taken from its file again; `before` is what it was.
  void Reloaded(std::string before);
  /// The last command has put a backup into the document in front, or has made one of it.
  void BackupShown();

  /// What the line offers. Nothing happens where it offers nothing.
  void ShowChanges();
  void UndoChanges();

 signals:
  /// Whether there is anything to show.
  void offered(bool canShow);

 private:
  struct Texts;

  void OnCommandEnded();
  void OnChanged(const Document& document);
  void OnGone(const Document& document);
  void Report(ChangeKind kind, const std::vector<Slot>& documents);
  void Post(ChangeReport report);
  void Count();
  void Say(const QString& sentence);
  void Drop();
  Document At(const ChangedDocument& changed) const;
  bool CanUndo() const;
  Texts TextsOf(const ChangedDocument& changed) const;

  QStatusBar& bar_;
  TesselWidget& control_;
  Histories& histories_;
  ChangeLine* line_;
  std::optional<ChangeReport> report_;
  int posted_ = 0;  // reports; only the last one's counts are shown
  Slot front_{};    // the document in front when it was posted
  bool randomized_ = false;
  bool converting_ = false;
  std::optional<Slot> saved_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
