// A tab strip on the screen.
#pragma once

#include <QWidget>

#include "models/TabStrip.h"
#include "qt/views/TabBar.h"

namespace tessel {

/// Shows a TabStrip: a row of tabs along one edge and, below tabs, the line around the pages. The
/// pages themselves are siblings that stand above it.
class TabStripView : public QWidget {
  Q_OBJECT

 public:
  TabStripView(TabStrip& model, QTabBar::Shape shape, QWidget* parent);

  TabBar* Bar() { return bar_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int BarHeight() const;
  void Draw();
  void DrawTab(int tab);

  TabStrip& model_;
  TabBar* bar_;
  Subscription refresh_;
};

}  // namespace tessel
