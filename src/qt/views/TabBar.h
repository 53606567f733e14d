// The row of tabs of a strip, drawn flat with an accent line at the selected one.
#pragma once

#include <QTabBar>

namespace tessel {

class TabBar : public QTabBar {
  Q_OBJECT

 public:
  /// `shape` is RoundedNorth for tabs above their page, RoundedSouth for tabs below it.
  TabBar(QTabBar::Shape shape, QWidget* parent);

  /// The tab's name for assistive technology.
  QString NameOfTab(int index) const;

 signals:
  /// The tab that is selected already was clicked.
  void pressedAgain();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void tabLayoutChange() override;

 private:
  void PaintTab(QPainter& painter, int index) const;
  int RoomOfCloseButton(int index) const;
};

}  // namespace tessel
