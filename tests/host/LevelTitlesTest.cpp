// The titles of levels beside the numbers in the list of levels.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>

#include "HostFixture.h"
#include "host/script/LevelTitles.h"
#include "qt/views/ComboBoxView.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

constexpr const char* kLevels =
    "definelevelname 0 0 E1L1.map 02:10 01:05 RED DUST STATION\r\n"
    "// definelevelname 0 1 E1L2.map 02:10 01:05 A REMARK\r\n"
    "definelevelname 0 1 E1L2.map 04:30 02:20 PIER NINE // by night\r\n";

TEST(TitlesOfLevels, AreThoseOfTheLinesInTheOrderOfTheEntries) {
  const std::string text = kLevels;
  const language::Script script(text);
  EXPECT_THAT(TitlesOfLevels(script, {"0 1", "0 0", "3 3"}),
              ElementsAre("PIER NINE", "RED DUST STATION", ""));
}

TEST(TitlesOfLevels, OfALevelThatIsThereTwiceAreBothShown) {
  const std::string text =
      "definelevelname 0 0 a.map 01:00 01:00 FIRST\n"
      "definelevelname 0 0 b.map 01:00 01:00 SECOND\n";
  const language::Script script(text);
  EXPECT_THAT(TitlesOfLevels(script, {"0 0", "0 0", "0 0"}), ElementsAre("FIRST", "SECOND", ""));
}

class LevelList : public HostTest {
 protected:
  void SetUp() override {
    Run().window->OpenFiles({directory_.Put("user.con", kLevels)});
    Run().Controls().tbsCon.Press(kLevelPage + 1);
    box_ =
        qobject_cast<ComboBoxView*>(Run().window->Control().WidgetFor(Run().Controls().cboEpisode));
    ASSERT_NE(box_, nullptr);
  }
  QImage Dropped() {
    box_->showPopup();
    QApplication::processEvents();
    const QImage image = box_->view()->viewport()->grab().toImage();
    box_->hidePopup();
    return image;
  }

  ComboBoxView* box_ = nullptr;
};

TEST_F(LevelList, PaintsTitlesBesideTheEntriesAndKeepsTheEntries) {
  const auto entries = Run().Controls().cboEpisode.List();
  ASSERT_GE(entries.size(), 2U);
  const QImage with = Dropped();
  EXPECT_EQ(Run().Controls().cboEpisode.List(), entries);
  EXPECT_EQ(box_->itemText(0).toStdString(), entries[0]);
  box_->ShowNotes({});
  EXPECT_NE(Dropped(), with);
}

TEST_F(LevelList, PaintsTheTitleThatTheTextHasNow) {
  const QImage before = Dropped();
  RichTextBox& editor = Run().Editor(0);
  editor.SelectByHand(static_cast<Position>(editor.Text().find("RED DUST")), 8);
  editor.Type("PINK SAND");
  const QImage after = Dropped();
  EXPECT_NE(after, before);
  EXPECT_EQ(Run().Controls().cboEpisode.List(0), "0 0");
}

}  // namespace
}  // namespace tessel::test
