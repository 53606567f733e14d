// Where the bars with notices stand, and on what ground.
#include <QApplication>
#include <QToolBar>

#include "HostFixture.h"
#include "host/ReadingNotice.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "qt/base/TwipScale.h"
#include "qt/editor/ScintillaView.h"
#include "qt/looks/Contrast.h"
#include "qt/looks/Theme.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {
namespace {

class NoticePlace : public HostTest {
 protected:
  NoticeBar& Bar() { return *Run().window->findChild<ReadingNotice*>(); }
  void ShowBar() {
    Run().window->OpenFiles({directory_.Put("long.con", std::string(1 << 20, 'x'))});
    QApplication::processEvents();
    ASSERT_TRUE(Bar().isVisible());
  }
  QRect PlaceOf(const QWidget& widget) const {
    return {widget.mapTo(run_->window.get(), QPoint()), widget.size()};
  }
  QWidget& WidgetOf(const Control& control) { return *Run().window->Control().WidgetFor(control); }
};

TEST_F(NoticePlace, IsAboveTheTextAndMovesNothingElse) {
  const auto others = [this] {
    return std::vector{
        PlaceOf(WidgetOf(Run().Controls().tbToolBar)), PlaceOf(WidgetOf(Run().Controls().tbsCon)),
        PlaceOf(WidgetOf(Run().Controls().picRtb)), PlaceOf(WidgetOf(Run().Controls().tbsRtb))};
  };
  const auto before = others();
  const Twips height = Run().Editor(0).Height();
  ShowBar();
  EXPECT_EQ(others(), before);
  EXPECT_EQ(Run().Editor(0).Height(), height);
  const QRect bar = PlaceOf(Bar());
  const QRect text = PlaceOf(*Run().window->Control().CurrentEditorView());
  const QRect area = PlaceOf(WidgetOf(Run().Controls().picRtb));
  EXPECT_TRUE(area.contains(bar));
  EXPECT_TRUE(area.contains(text));
  EXPECT_GT(text.top(), bar.bottom());
}

TEST_F(NoticePlace, HasNoKeyOfAnotherBarNorOfTheMenuBar) {
  Run().window->OpenFiles({directory_.Put("user.con", "define A 1\r\n")});
  Run().Editor(0).Type("// ");
  ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow());
  Restart();
  ASSERT_NE(Run().window->findChild<RecoveryOffer*>(), nullptr);
  QStringList keys;
  for (const QAction* title : Run().window->menuBar()->actions()) {
    keys += QKeySequence::mnemonic(title->text()).toString();
  }
  for (const NoticeBar* bar : Run().window->findChildren<NoticeBar*>()) {
    for (const QPushButton* button : bar->findChildren<QPushButton*>()) {
      keys += QKeySequence::mnemonic(button->text()).toString();
    }
  }
  EXPECT_EQ(keys.size(), 8 + 4 + 3 + 2);
  EXPECT_EQ(keys.removeDuplicates(), 0) << keys.join(' ').toStdString();
}

TEST_F(NoticePlace, GivesItsRoomBackToTheText) {
  ShowBar();
  const QWidget& text = *Run().window->Control().CurrentEditorView();
  const QRect meanwhile = text.geometry();
  Bar().hide();
  QApplication::processEvents();
  EXPECT_EQ(text.geometry(), PixelGeometry(CurrentEditor(Run().Controls()), text));
  EXPECT_GT(text.height(), meanwhile.height());
}

TEST_F(NoticePlace, IsLightInTheLightThemeAndDarkInTheDark) {
  ShowBar();
  for (const Brightness brightness : {Brightness::kLight, Brightness::kDark}) {
    const QPalette colours = PaletteOf(brightness);
    Bar().setPalette(colours);
    const QColor ground = Bar().grab().toImage().pixelColor(2, 2);
    EXPECT_EQ(LuminanceOf(ground) > 0.5, brightness == Brightness::kLight);
    EXPECT_GE(ContrastOf(ground, colours.color(QPalette::WindowText)), kReadableContrast);
    EXPECT_NE(ground, colours.color(QPalette::Base));
  }
}

}  // namespace
}  // namespace tessel::test
