// What the window says that a command has done, and what it offers then.
#include <QComboBox>
#include <QLocale>
#include <QStatusBar>
#include <QToolButton>
#include <fstream>

#include "ScriptTest.h"
#include "host/BackupsDialog.h"
#include "host/ChangeNotice.h"
#include "host/changes/ChangeCount.h"
#include "host/changes/ChangeLine.h"
#include "host/changes/DifferenceWindow.h"
#include "host/find/FindBar.h"
#include "host/find/FindField.h"
#include "randomizer/frmRand.h"

namespace tessel::test {
namespace {

// --- Counting

TEST(ChangeCount, CountsALineThatBecameAnotherOneOnce) {
  EXPECT_EQ(ChangedLines("a\r\nb\r\nc\r\n", "a\r\nB\r\nc\r\n"), 1U);
  EXPECT_EQ(ChangedLines("a\nb\n", "a\nx\ny\nb\n"), 2U);
  EXPECT_EQ(ChangedLines("a\nb\nc\n", "c\n"), 2U);
  EXPECT_EQ(ChangedLines("a\rb\r", "a\rc\r"), 1U);
  EXPECT_EQ(ChangedLines("a\n", "a\n"), 0U);
}

TEST(ChangeCount, CountsDefinesWithAnotherValue) {
  EXPECT_EQ(ChangedValues("define A 1\ndefine B 2 // 3\n", "define A 1\ndefine B 5 // 3\n"), 1U);
  EXPECT_EQ(ChangedValues("define A 1\n// define B 2\n", "define A 1\n// define B 3\n"), 0U);
  EXPECT_EQ(ChangedValues("define A 1\n", "define B 1\n"), std::nullopt);
  EXPECT_EQ(ChangedValues("define A 1\n", "define A 1\ndefine B 1\n"), std::nullopt);
}

// --- In the window

class ChangeReport : public ScriptTest {
 protected:
  ChangeLine& Line() { return *Shown().findChild<ChangeLine*>(); }
  std::string Told() { return Line().isHidden() ? "" : Line().Sentence().toStdString(); }
  bool Tells(const std::string& sentence) {
    return QTest::qWaitFor([&] { return Told() == sentence; }, kPatience);
  }
  QToolButton* Link(const QString& caption) {
    for (auto* link : Line().findChildren<QToolButton*>()) {
      if (link->text() == caption && !link->isHidden()) return link;
    }
    return nullptr;
  }
  void Click(const QString& caption) {
    QToolButton* link = Link(caption);
    ASSERT_NE(link, nullptr) << caption.toStdString();
    link->click();
  }
  DifferenceWindow* Differences() { return Shown().findChild<DifferenceWindow*>(); }
  bool Shows(const QString& place) {
    return QTest::qWaitFor(
        [&] {
          return Differences() != nullptr &&
                 Differences()->findChild<QLabel*>("place")->text() == place;
        },
        kPatience);
  }
  /// The rows of the difference view, with their signs.
  std::string Rows() {
    const auto* view = Differences()->findChild<DifferenceView*>();
    const auto* model = qobject_cast<DifferenceModel*>(view->model());
    std::string rows;
    for (int row = 0; row < model->rowCount(); ++row) {
      rows += model->Copied(row).toStdString() + "\n";
    }
    return rows;
  }
  void Randomize(const char* lower, const char* upper) {
    Run().fakes.forms.scripts = {[=](Form& form) {
      auto& rand = static_cast<frmRand&>(form);
      rand.cmbChoose[0].SetText(lower);
      rand.cmbChoose[1].SetText(upper);
      rand.cmdOk.Press();
    }};
    Run().Controls().tbToolBar.Press("RandAll");
  }
  void Replace(const QString& what, const QString& by, const QString& button) {
    auto& bar = *Shown().findChild<FindBar*>();
    bar.Replace();
    auto* field = bar.findChild<FindField*>()->lineEdit();
    field->selectAll();
    QTest::keyClicks(field, what);
    bar.findChild<QLineEdit*>("replacement")->setText(by);
    for (auto* each : bar.findChildren<QPushButton*>()) {
      if (PlainCaption(each->text()) == button) each->click();
    }
  }

  const std::string values_ =
      "define MAXPLAYERHEALTH 100\r\ndefine MAXSHOTGUNAMMO 5\r\ndefine OTHER 7\r\n";
};

TEST_F(ChangeReport, CountsTheValuesThatTheRandomizerHasChanged) {
  Open(values_);
  Randomize("5", "5");
  ASSERT_TRUE(Tells("1 value changed")) << "the other one was 5 already: " << Told();
  EXPECT_EQ(Link("Show")->accessibleName(), "Show changes: 1 value changed");
  Click("Undo");
  EXPECT_EQ(Text().Text(), values_);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, SaysNothingOfARandomizerThatWasCancelled) {
  Open(values_);
  Text().Type("// ");
  Run().fakes.forms.scripts = {[](Form& form) { static_cast<frmRand&>(form).cmdCancel.Press(); }};
  Run().Controls().tbToolBar.Press("RandAll");
  QTest::qWait(50);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, CountsTheLinesThatAConversionHasChanged) {
  const std::string before = BytesOf(std::string(TESSEL_TEST_DATA_DIR) + "/zmuser.dat");
  Open(before);
  Run().Controls().tbToolBar.Press("Convert");
  const std::size_t lines = ChangedLines(before, Text().Text());
  ASSERT_GT(lines, 50U);
  EXPECT_TRUE(Tells("Converted to 1.4/1.5: " + std::to_string(lines) + " lines changed"));
  Click("Undo");
  EXPECT_EQ(Text().Text(), before);
}

TEST_F(ChangeReport, SaysNothingOfAConversionThatWasRefused) {
  Open("define QSIZE 128\r\n");
  Text().Type("// ");
  Run().Controls().tbToolBar.Press("Convert");
  QTest::qWait(50);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, TellsThatAFileWasSavedUntilItIsChangedAgain) {
  Open(std::string(35'392, 'x'));
  Run().SaveInPlace();
  EXPECT_EQ(Told(), "1.con saved, " + QLocale().toString(35'392).toStdString() + " bytes");
  EXPECT_EQ(Link("Show"), nullptr);
  EXPECT_EQ(Link("Undo"), nullptr);
  Text().Type("y");
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, TakesAReplacementInAllDocumentsBackInEachOfThem) {
  Open("one one", "one two");
  Replace("one", "1", "In All Documents");
  ASSERT_EQ(Told(), "3 replaced in 2 documents");
  ASSERT_EQ(Run().Editor(0).Text(), "1 1");
  Click("Undo");
  EXPECT_EQ(Run().Editor(0).Text(), "one one");
  EXPECT_EQ(Run().Editor(1).Text(), "one two");
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, ShowsEachDocumentOfAReplacement) {
  Open("one one", "one two");
  Replace("one", "1", "In All Documents");
  Click("Show");
  ASSERT_TRUE(Shows("1 of 1"));
  EXPECT_EQ(Rows(), "-one one\n+1 1\n");
  auto* documents = Differences()->findChild<QComboBox*>();
  EXPECT_TRUE(documents->isVisible());
  documents->setCurrentIndex(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Rows() == "-one two\n+1 two\n"; }, kPatience));
}

TEST_F(ChangeReport, IsGoneAfterTheNextEdit) {
  Open("one one");
  Replace("one", "1", "Replace");
  QTest::qWait(20);
  Replace("one", "1", "Replace All");
  ASSERT_TRUE(Told().ends_with("replaced"));
  Text().Type("x");
  EXPECT_EQ(Told(), "");
  EXPECT_FALSE(Run().MenuItem("S&how Last Changes")->isEnabled());
}

TEST_F(ChangeReport, IsGoneBehindAnotherDocument) {
  Open("one", "one");
  Replace("one", "1", "Replace All");
  ASSERT_EQ(Told(), "1 replaced");
  Select(0);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, StaysWhereColoursChangeOnly) {
  Open("define A 1 // one\r\n");
  Replace("one", "1", "Replace All");
  Run().Controls().tbToolBar.Press("Colorize");
  EXPECT_EQ(Told(), "1 replaced");
}

TEST_F(ChangeReport, CountsTheLinesThatBecameComments) {
  Open("one\r\n\r\ntwo\r\nthree\r\n");
  Text().SelectByHand(0, 11);
  Run().MenuItem("C&omment Lines On or Off")->trigger();
  EXPECT_TRUE(Tells("2 lines changed"));
  Click("Undo");
  EXPECT_EQ(Text().Text(), "one\r\n\r\ntwo\r\nthree\r\n");
}

TEST_F(ChangeReport, SaysNothingOfOneLineThatBecameAComment) {
  Open("one\r\ntwo\r\n");
  Text().SelectByHand(0, 0);
  Run().MenuItem("C&omment Lines On or Off")->trigger();
  QTest::qWait(50);
  EXPECT_EQ(Told(), "");
}

TEST_F(ChangeReport, ShowsWhatReloadingHasChanged) {
  Open("define A 1\r\ndefine B 1\r\n");
  std::ofstream(directory_ / "1.con", std::ios::binary) << "define A 1\r\ndefine B 2\r\n";
  auto& notice = *Shown().findChild<ChangeNotice*>();
  notice.Check();
  ASSERT_TRUE(Run().Press<ChangeNotice>("Rel&oad"));
  ASSERT_TRUE(Tells("1.con reloaded: 1 line changed"));
  EXPECT_EQ(Link("Undo"), nullptr) << "nothing is left to undo";
  Click("Show");
  ASSERT_TRUE(Shows("1 of 1"));
  EXPECT_EQ(Rows(), " define A 1\n-define B 1\n+define B 2\n");
}

TEST_F(ChangeReport, TakesABackupThatWasPutBackAway) {
  Open("first\r\n");
  Text().SelectByHand(0, 0);
  Text().Type("second ");
  Run().SaveInPlace();
  Run().MenuItem("&Backups...")->trigger();
  auto* dialog = Shown().findChild<BackupsDialog*>();
  ASSERT_NE(dialog, nullptr);
  for (auto* button : dialog->findChildren<QPushButton*>()) {
    if (button->text() == "&Open") button->click();
  }
  ASSERT_EQ(Text().Text(), "first\r\n");
  ASSERT_TRUE(Tells("Backup put back: 1 line changed"));
  Click("Undo");
  EXPECT_EQ(Text().Text(), "second first\r\n");
}

TEST_F(ChangeReport, ShowsItsChangesFromTheMenuToo) {
  Open(values_);
  EXPECT_FALSE(Run().MenuItem("S&how Last Changes")->isEnabled());
  Randomize("5", "5");
  ASSERT_TRUE(Tells("1 value changed"));
  Run().MenuItem("S&how Last Changes")->trigger();
  ASSERT_TRUE(Shows("1 of 1"));
  EXPECT_EQ(Rows(),
            "-define MAXPLAYERHEALTH 100\n+define MAXPLAYERHEALTH 5\n define MAXSHOTGUNAMMO 5\n"
            " define OTHER 7\n");
}

}  // namespace
}  // namespace tessel::test
