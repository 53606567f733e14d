// What a person can do at a document's tab.
#pragma once

#include <QTabBar>

#include "qt/TesselWidget.h"

namespace tessel {

/// A button that closes on each tab, the middle mouse button, and a menu. Each selects the tab
/// first, so that what follows is about the document in front, as ever.
class TabMenu : public QObject {
  Q_OBJECT

 public:
  /// `control` outlives this.
  explicit TabMenu(TesselWidget& control, QObject* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void closeOthersWanted();

 private:
  bool Select(int tab);
  void Close(int tab);
  void ShowMenu(int tab, QPoint at);

  TesselWidget& control_;
  QTabBar& bar_;
};

}  // namespace tessel
