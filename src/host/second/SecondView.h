// A second view of any open document, beside the control.
#pragma once

#include <QSplitter>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/menu/MainMenu.h"
#include "host/preferences/Preferences.h"
#include "host/second/SecondPane.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// A list in the View menu chooses the document. The view follows it when other documents are
/// closed or its name changes, and goes when the document itself is closed. Who goes into the view
/// has the document's tab selected.
class SecondView : public QObject {
  Q_OBJECT

 public:
  /// The splitter holds the control already. All outlive this.
  SecondView(TesselWidget& control, QSplitter& splitter, MainMenu& menu, Preferences& preferences);

  void Show(Slot slot);
  void Close();
  /// Shows the document in front, or goes to the view, or from there to the editor.
  void Step();

  std::optional<Slot> Shown() const { return slot_; }

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  void ListenToPane();
  void ListenToDocuments();
  void FillMenu();
  void Attach(Slot slot);
  void ShowPane();
  void ShowTitle();
  void ApplyWish(std::optional<Wish> wish);
  void Dropped(const Document& document);
  void Loaded(const Document& document);
  void Moved(Slot from, Slot to);
  void SelectTab();
  void GoToEditor();

  TesselWidget& control_;
  QSplitter& splitter_;
  QMenu& list_;
  Preferences& preferences_;
  DocumentList& documents_;
  SecondPane* pane_;
  std::optional<Slot> slot_;
  long topLine_ = 0;                                       // when the document was dropped
  std::optional<std::pair<Slot, std::string>> reloading_;  // its place and path then
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
