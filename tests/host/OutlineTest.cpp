// The outline beside the text, by keyboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTreeView>

#include "ScriptTest.h"
#include "host/script/OutlineDock.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kUser =
    "define MAX 5\r\ndefine MIN 1 // x\r\ndefinelevelname 0 1 E1L2.map 02:00 01:00 RED LIGHT\r\n";
constexpr const char* kGame =
    "state hurt\r\n  { }\r\nends\r\nactor ROACH 5\r\n  state hurt\r\nenda\r\naction AWALK 0 4\r\n";

class Outline : public ScriptTest {
 protected:
  OutlineDock& Dock() { return *Shown().findChild<OutlineDock*>(); }
  QTreeView& Tree() { return *Dock().findChild<QTreeView*>(); }
  QLineEdit& Filter() { return *Dock().findChild<QLineEdit*>(); }
  void Toggle() { Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier); }

  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    const QAbstractItemModel& model = *Tree().model();
    for (int g = 0; g < model.rowCount(); ++g) {
      const QModelIndex group = model.index(g, 0);
      rows.push_back(group.data().toString().toStdString() +
                     (Tree().isExpanded(group) ? "" : " closed"));
      for (int row = 0; row < model.rowCount(group); ++row) {
        rows.push_back("  " + model.index(row, 0, group).data().toString().toStdString());
      }
    }
    return rows;
  }
  std::string Marked() { return Tree().currentIndex().data().toString().toStdString(); }
  bool Lists(const std::string& row) {
    return QTest::qWaitFor(
        [&] {
          const auto rows = Rows();
          return std::ranges::find(rows, "  " + row) != rows.end();
        },
        kPatience);
  }
};

TEST_F(Outline, IsHiddenUntilItIsWanted) {
  EXPECT_TRUE(Dock().isHidden());
  Toggle();
  EXPECT_TRUE(Dock().isVisible());
  EXPECT_TRUE(Filter().hasFocus());
  QTest::keyClick(&Filter(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Dock().isHidden());
}

TEST_F(Outline, ListsWhatTheDocumentDefinesByKind) {
  Open(std::string(kUser));
  Toggle();
  ASSERT_TRUE(Lists("MIN  1"));
  EXPECT_THAT(Rows(), ElementsAre("Levels (1)", "  0 1  RED LIGHT", "Definitions (2)", "  MAX  5",
                                  "  MIN  1"));
}

TEST_F(Outline, FollowsTheDocumentInFront) {
  Open(std::string(kUser), std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  EXPECT_THAT(Rows(), ElementsAre("Actors (1)", "  ROACH", "States (1)", "  hurt", "Actions (1)",
                                  "  AWALK"));
  Select(0);
  EXPECT_TRUE(Lists("MAX  5"));
}

TEST_F(Outline, FollowsWhatIsTyped) {
  Open(std::string(kUser));
  Toggle();
  ASSERT_TRUE(Lists("MAX  5"));
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&View(), "define NEW 7");
  Press(Qt::Key_Return);
  EXPECT_TRUE(Lists("NEW  7"));
}

TEST_F(Outline, GoesWhereAnEntryIsDefined) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  QTest::keyClicks(&Filter(), "oac");
  EXPECT_THAT(Rows(), ElementsAre("Actors (1)", "  ROACH"));
  QTest::keyClick(&Filter(), Qt::Key_Return);
  EXPECT_EQ(Selected(), "actor [ROACH] 5");
  EXPECT_TRUE(View().hasFocus());
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Text().SelStart(), 0);
}

TEST_F(Outline, GoesThereBeforeItHasReadAnEditInFrontOfIt) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  Text().SelectByHand(0, 0);
  Text().Type("// some words\r\n");
  QTest::keyClicks(&Filter(), "roach");
  QTest::keyClick(&Filter(), Qt::Key_Return);
  EXPECT_EQ(Selected(), "actor [ROACH] 5");
}

TEST_F(Outline, GoesNowhereWhereTheNameIsGone) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  Text().SetText("short");
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&Filter(), "roach");
  QTest::keyClick(&Filter(), Qt::Key_Return);
  EXPECT_EQ(Text().SelStart(), 0);
}

TEST_F(Outline, GoesThereByKeysAndByTheMouseFromItsList) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  QTest::keyClick(&Filter(), Qt::Key_Down);
  EXPECT_TRUE(Tree().hasFocus());
  QTest::keyClick(&Tree(), Qt::Key_Down);
  EXPECT_EQ(Marked(), "Actions (1)");
  QTest::keyClick(&Tree(), Qt::Key_Down);
  QTest::keyClick(&Tree(), Qt::Key_Return);
  EXPECT_EQ(Selected(), "action [AWALK] 0 4");
  const QModelIndex state = Tree().model()->index(0, 0, Tree().model()->index(1, 0));
  const QPoint place = Tree().visualRect(state).center();
  QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Selected(), "action [AWALK] 0 4");
  QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Selected(), "state [hurt]");
}

TEST_F(Outline, MarksTheEntryOfTheCaret) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  EXPECT_EQ(Marked(), "hurt");
  Text().SelectByHand(static_cast<Position>(Text().Bytes().find("enda")), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Marked() == "ROACH"; }, kPatience)) << Marked();
}

TEST_F(Outline, LeavesItsFilterByEscape) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  QTest::keyClicks(&Filter(), "roach");
  QTest::keyClick(&Filter(), Qt::Key_Escape);
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Rows().size(), 6U);
}

TEST_F(Outline, KeepsAGroupClosedThatTheUserClosed) {
  Open(std::string(kUser));
  Toggle();
  ASSERT_TRUE(Lists("MAX  5"));
  Tree().collapse(Tree().model()->index(1, 0));
  Text().Type("define NEW 7\r\n");
  ASSERT_TRUE(Lists("NEW  7"));
  EXPECT_EQ(Rows()[2], "Definitions (3) closed");
}

TEST_F(Outline, ListsNothingOfAnEmptyDocument) {
  Toggle();
  QTest::qWait(50);
  EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(Outline, IsRemembered) {
  Toggle();
  CloseAndStartAgain();
  EXPECT_TRUE(Dock().isHidden());
  Shown().RestoreLook();
  EXPECT_TRUE(Dock().isVisible());
  Dock().close();
  CloseAndStartAgain();
  Shown().RestoreLook();
  EXPECT_TRUE(Dock().isHidden());
}

TEST_F(Outline, ChangesNoText) {
  Open(std::string(kGame));
  Toggle();
  ASSERT_TRUE(Lists("ROACH"));
  EXPECT_EQ(Text().Text(), kGame);
  EXPECT_FALSE(Documents().Current().Modified());
  EXPECT_FALSE(Text().CanUndo());
}

}  // namespace
}  // namespace tessel::test
