#include "qt/views/TabStripView.h"

#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/base/TwipScale.h"
#include "qt/looks/DotIcon.h"
#include "qt/looks/Theme.h"
#include "surface/HostedControls.h"

namespace tessel {
namespace {

// What the layout's formulas leave free for the tabs on either side.
constexpr Twips kTabsAbove = 330;
constexpr Twips kTabsBelow = 340;
constexpr int kGapBelowPages = 3;

}  // namespace

TabStripView::TabStripView(TabStrip& model, QTabBar::Shape shape, QWidget* parent)
    : QWidget(parent), model_(model), bar_(new TabBar(shape, this)) {
  connect(bar_, &QTabBar::currentChanged, this, [this](int index) { model_.Press(index + 1); });
  connect(bar_, &TabBar::pressedAgain, this, [this] { model_.Press(bar_->currentIndex() + 1); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

int TabStripView::BarHeight() const {
  const bool south = bar_->shape() == QTabBar::RoundedSouth;
  return TwipsToPixels(south ? kTabsBelow : kTabsAbove, logicalDpiY());
}

void TabStripView::Draw() {
  {
    const QSignalBlocker quiet(bar_);
    while (bar_->count() > model_.Count()) bar_->removeTab(bar_->count() - 1);
    while (bar_->count() < model_.Count()) bar_->addTab(QString());
    for (int tab = 1; tab <= model_.Count(); ++tab) DrawTab(tab);
    bar_->setCurrentIndex(model_.Selected() - 1);
  }
  DrawState(*this, model_);
}

void TabStripView::DrawTab(int tab) {
  const Tab& shown = model_.At(tab);
  const int index = tab - 1;
  const QString caption = ShownName(shown.caption);
  const bool modified = shown.image == kRedDot;
  if (bar_->tabText(index) != WithoutMnemonics(caption)) {
    bar_->setTabText(index, WithoutMnemonics(caption));
  }
  bar_->setTabToolTip(index, PlainToolTip(ShownName(shown.tag)));
  const QString name = caption.isEmpty() ? tr("Empty document") : caption;
  bar_->setAccessibleTabName(index, modified ? name + tr(", modified") : name);
  if (bar_->tabData(index).toString().toStdString() != shown.image) {
    bar_->setTabIcon(index, shown.image.empty() ? QIcon() : DotIcon(modified));
    bar_->setTabData(index, QString::fromStdString(shown.image));
  }
}

void TabStripView::resizeEvent(QResizeEvent*) {
  const bool south = bar_->shape() == QTabBar::RoundedSouth;
  const int barHeight = std::min(BarHeight(), height());
  bar_->setGeometry(0, south ? height() - barHeight : 0, width(), barHeight);
}

void TabStripView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) update();
}

void TabStripView::paintEvent(QPaintEvent*) {
  // What stands above tabs has a frame of its own.
  if (bar_->shape() == QTabBar::RoundedSouth) return;
  const Theme theme(palette());
  QRect page = rect().adjusted(0, 0, -1, -kGapBelowPages);
  page.setTop(bar_->geometry().bottom());
  QPainter painter(this);
  painter.fillRect(page, theme.Page());
  painter.setPen(theme.Line());
  painter.drawRect(page);
}

}  // namespace tessel
