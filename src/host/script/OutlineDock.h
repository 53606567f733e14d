// The outline at the right of the control.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <vector>

#include "host/script/Navigator.h"
#include "host/script/OutlinePane.h"
#include "host/script/StructureReader.h"

namespace tessel {

/// Shows the outline of the current document, and remembers whether the user wants it and how wide
/// it is. Costs nothing while it is hidden.
class OutlineDock : public QDockWidget {
  Q_OBJECT

 public:
  /// What it uses; all of it outlives it.
  struct Uses {
    TesselWidget& control;
    OpenScripts& scripts;
    StructureReader& reader;
    Navigator& navigator;
  };
  OutlineDock(const Uses& uses, QMainWindow& window);

  void SetShown(bool shown);
  /// As the user left it.
  void RestoreLook();
  void FocusFilter() { pane_->FocusFilter(); }

 signals:
  void shownChanged(bool shown);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowEntries(Slot slot, const language::Structure& structure);
  void GoTo(const OutlineEntry& entry);
  void MarkCaret();

  Uses uses_;
  QMainWindow& window_;
  OutlinePane* pane_;
  Slot slot_{};  // of the document that is listed
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
