// A row of tabs as assistive technology sees it.
#pragma once

#include <QAccessibleWidget>
#include <vector>

#include "qt/views/TabBar.h"

namespace tessel {

/// Has the row's own name: the toolkit would give that of the current tab. Its children are the
/// tabs, and behind them the buttons that the row shows.
class TabBarInterface : public QAccessibleWidget {
 public:
  explicit TabBarInterface(TabBar& bar);
  ~TabBarInterface() override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  TabBar& bar_;
  mutable std::vector<QAccessible::Id> tabs_;  // those that somebody asked for, by index
};

}  // namespace tessel
