// How lists, combo boxes, tabs and the text look on the widget of the control.
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <algorithm>

#include "TesselWidgetFixture.h"
#include "qt/looks/TesselStyle.h"
#include "qt/looks/Theme.h"
#include "qt/views/ListBoxView.h"

namespace tessel::test {
namespace {

TEST(ListRows, AreWholeWhateverTheHeightOfTheList) {
  ControlSet controls;
  ListBox model(controls, "lst");
  for (int i = 0; i < 40; ++i) model.AddItem("Weapon " + std::to_string(i));
  ListBoxView list(model, nullptr);
  list.show();
  for (int height = 40; height < 160; ++height) {
    list.resize(200, height);
    QApplication::processEvents();
    const QRect room = list.viewport()->rect();
    const int last = list.row(list.itemAt(room.bottomLeft()));
    const QRect row = list.visualItemRect(list.item(last));
    EXPECT_EQ(row.bottom(), room.bottom()) << height;
    EXPECT_GE(row.height(), kLeastRowHeight) << height;
    EXPECT_LT(height - 2 * list.frameWidth() - room.height(), last + 1) << height;
  }
}

class PanelLooks : public TesselWidgetTest {};

TEST_F(PanelLooks, DropAtMostTwelveEntries) {
  Controls().tbsCon.Press(kLevelPage + 1);
  for (int i = 0; i < 33; ++i) Controls().cboEpisode.AddItem("0 " + std::to_string(i));
  auto* box = WidgetFor<QComboBox>(Controls().cboEpisode);
  TesselStyle style;
  box->setStyle(&style);
  box->showPopup();
  QApplication::processEvents();
  const QAbstractItemView* list = box->view();
  EXPECT_EQ(list->viewport()->height() / list->sizeHintForRow(0), 12);
  EXPECT_GE(list->window()->mapToGlobal(QPoint()).y(), box->mapToGlobal(QPoint()).y());
  box->hidePopup();
}

TEST_F(PanelLooks, DrawsNoLineBehindTheLastTab) {
  auto* bar = WidgetFor<QTabBar>(Controls().tbsCon);
  const QImage image = bar->grab().toImage();
  const auto lineBehind = [&](int tab) {
    const QRect rect = bar->tabRect(tab);
    return image.pixelColor(rect.right(), rect.center().y());
  };
  const QColor ground = bar->palette().color(QPalette::Window);
  EXPECT_NE(lineBehind(bar->count() - 2), ground);
  EXPECT_EQ(lineBehind(bar->count() - 1), ground);
}

int FirstRowWithInk(const QImage& image, const QRect& part) {
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left() + 1; x < part.right(); ++x) {
      if (image.pixelColor(x, y).lightness() < 120) return y;
    }
  }
  return -1;
}

TEST_F(PanelLooks, HasTheTitlesOfGroupsAsHighAsTheLabelsBesideThem) {
  TesselStyle style;
  Controls().tbsCon.Press(kMiscPage + 1);
  auto* page = WidgetFor(Controls().picCon[kMiscPage]);
  auto* group = page->findChild<QGroupBox*>();
  const auto labels = page->findChildren<QLabel*>();
  const auto* label = *std::ranges::find(labels, QString("Select &Item:"), &QLabel::text);
  page->setPalette(PaletteOf(Brightness::kLight));
  group->setStyle(&style);
  QApplication::processEvents();
  const auto rectOf = [page](const QWidget& part) {
    return QRect(part.mapTo(page, QPoint()), QSize(part.width(), 20));
  };
  const QImage image = page->grab().toImage();
  const int first = FirstRowWithInk(image, rectOf(*label));
  ASSERT_GT(first, 0);
  EXPECT_EQ(FirstRowWithInk(image, rectOf(*group)), first);
}

// From the edge of the strip inwards to the margin with the numbers.
TEST_F(PanelLooks, HasOneFrameAroundTheText) {
  widget_.setPalette(PaletteOf(Brightness::kLight));
  const QWidget* strip = WidgetFor(Controls().tbsRtb)->parentWidget();
  const QImage image = widget_.grab().toImage();
  const int y = strip->y() + strip->height() / 2;
  const QRgb frame = Theme(widget_.palette()).Outline().rgb();
  const QRgb faint = Theme(widget_.palette()).Line().rgb();
  int frames = 0;
  for (int x = strip->x(); x < strip->x() + 14; ++x) {
    if (image.pixel(x, y) == frame) ++frames;
    EXPECT_NE(image.pixel(x, y), faint) << x;
  }
  EXPECT_EQ(frames, 1);
}

}  // namespace
}  // namespace tessel::test
