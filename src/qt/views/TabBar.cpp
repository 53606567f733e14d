#include "qt/views/TabBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "qt/base/Mnemonics.h"
#include "qt/looks/Theme.h"
#include "qt/views/ViewAccessibility.h"

namespace tessel {
namespace {

constexpr int kSidePadding = 12;
constexpr int kIconGap = 6;
constexpr int kAccentLine = 2;
constexpr int kNarrowestTab = 64;
constexpr int kWidestTab = 220;

}  // namespace

TabBar::TabBar(QTabBar::Shape shape, QWidget* parent) : QTabBar(parent) {
  InstallViewAccessibility();
  setShape(shape);
  setExpanding(false);
  setDrawBase(false);
  setUsesScrollButtons(true);
  setElideMode(Qt::ElideMiddle);
  setIconSize({10, 10});
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
}

void TabBar::mousePressEvent(QMouseEvent* event) {
  const int before = currentIndex();
  const int pressed = tabAt(event->position().toPoint());
  QTabBar::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && pressed >= 0 && pressed == before) emit pressedAgain();
}

QSize TabBar::tabSizeHint(int index) const {
  const int icon = tabIcon(index).isNull() ? 0 : iconSize().width() + kIconGap;
  const int text = fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
  const int wanted = text + icon + RoomOfCloseButton(index) + 2 * kSidePadding;
  return {std::clamp(wanted, kNarrowestTab, kWidestTab), height()};
}

int TabBar::RoomOfCloseButton(int index) const {
  const QWidget* button = tabButton(index, RightSide);
  return button == nullptr ? 0 : button->width() + kIconGap / 2;
}

QString TabBar::NameOfTab(int index) const {
  const QString given = accessibleTabName(index);
  return given.isEmpty() ? PlainCaption(tabText(index)) : given;
}

// What a close button belongs to may have changed with the tabs.
void TabBar::tabLayoutChange() {
  for (int index = 0; index < count(); ++index) {
    QWidget* button = tabButton(index, RightSide);
    if (button == nullptr) continue;
    const QString text = PlainCaption(tabText(index));
    button->setAccessibleName(text.isEmpty() ? tr("Close the document") : tr("Close %1").arg(text));
  }
}

QSize TabBar::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

void TabBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int i = 0; i < count(); ++i) PaintTab(painter, i);
}

void TabBar::PaintTab(QPainter& painter, int index) const {
  QStyleOptionTab option;
  initStyleOption(&option, index);
  const QRect tab = option.rect;
  const bool selected = index == currentIndex();
  const bool hovered = tab.contains(mapFromGlobal(QCursor::pos())) && underMouse();
  const bool south = shape() == RoundedSouth;
  const Theme theme(palette());

  if (selected) painter.fillRect(tab, theme.Page());
  if (!selected && hovered) painter.fillRect(tab, theme.Hover());
  painter.setPen(theme.Line());
  if (selected) {
    painter.drawLine(tab.left(), tab.top(), tab.left(), tab.bottom());
    painter.drawLine(tab.right(), tab.top(), tab.right(), tab.bottom());
    const int accent = south ? tab.bottom() - kAccentLine + 1 : tab.top();
    painter.fillRect(tab.left(), accent, tab.width(), kAccentLine, theme.Accent());
  } else if (index + 1 != currentIndex() && index + 1 != count()) {
    painter.drawLine(tab.right(), tab.top() + 5, tab.right(), tab.bottom() - 5);
  }

  QRect content = tab.adjusted(kSidePadding, 0, -kSidePadding - RoomOfCloseButton(index), 0);
  const QIcon icon = tabIcon(index);
  if (!icon.isNull()) {
    const QSize size = iconSize();
    const QRect place(content.left(), tab.center().y() - size.height() / 2 + 1, size.width(),
                      size.height());
    icon.paint(&painter, place);
    content.setLeft(place.right() + 1 + kIconGap);
  }
  const QString text =
      fontMetrics().elidedText(tabText(index), elideMode(), content.width(), Qt::TextShowMnemonic);
  painter.setPen(selected ? palette().color(QPalette::WindowText) : theme.QuietText());
  painter.drawText(content, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text);

  if (selected && hasFocus()) {
    QPen dotted(theme.Accent(), 1, Qt::DotLine);
    painter.setPen(dotted);
    painter.drawRect(tab.adjusted(4, 4, -5, -4));
  }
}

}  // namespace tessel
