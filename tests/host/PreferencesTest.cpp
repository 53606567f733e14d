// What the user wishes of the window, and where it is kept.
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QToolBar>

#include "HostFixture.h"
#include "host/preferences/PreferencesDialog.h"
#include "qt/editor/ScintillaView.h"
#include "qt/looks/Theme.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

class Wishes : public HostTest {
 protected:
  void SetUp() override {
    QApplication::setActiveWindow(Run().window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(Run().window.get()));
  }
  ScintillaView& View() { return *Run().window->Control().CurrentEditorView(); }
  PreferencesDialog& Dialog() {
    auto* open = Run().window->findChild<PreferencesDialog*>();
    if (open == nullptr) Run().MenuItem("Pr&eferences...")->trigger();
    return *Run().window->findChild<PreferencesDialog*>();
  }
  QCheckBox& Box(const QString& caption) {
    for (auto* box : Dialog().findChildren<QCheckBox*>()) {
      if (box->text() == caption) return *box;
    }
    throw std::runtime_error("no box " + caption.toStdString());
  }
};

TEST_F(Wishes, AreInEffectAtOnceAndInTheMenuToo) {
  Box("W&rap long lines").click();
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETWRAPMODE), Sci::SC_WRAP_WORD);
  EXPECT_TRUE(Run().MenuItem("&Word Wrap")->isChecked());
  Box("Show &blanks").click();
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETVIEWWS), Sci::SCWS_VISIBLEALWAYS);
  Box("R&uler at column 80").click();
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETEDGEMODE), Sci::EDGE_LINE);
  Dialog().findChildren<QSpinBox*>().at(1)->setValue(4);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETTABWIDTH), 4);
}

TEST_F(Wishes, HoldForDocumentsThatAreOpenedLater) {
  Run().MenuItem("&Word Wrap")->trigger();
  Run().window->OpenFiles({directory_.Put("a.con", "a"), directory_.Put("b.con", "b")});
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETWRAPMODE), Sci::SC_WRAP_WORD);
}

TEST_F(Wishes, AreKeptForTheNextStart) {
  Box("W&rap long lines").click();
  CloseAndStartAgain();
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETWRAPMODE), Sci::SC_WRAP_WORD);
  EXPECT_TRUE(Box("W&rap long lines").isChecked());
}

TEST_F(Wishes, ChangeTheFontOfEveryEditor) {
  const long before = View().SendScintilla(Sci::SCI_STYLEGETSIZE, 0UL);
  const auto boxes = Dialog().findChildren<QSpinBox*>();
  boxes.front()->setValue(static_cast<int>(before) + 7);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_STYLEGETSIZE, 0UL), before + 7);
  boxes.front()->setValue(0);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_STYLEGETSIZE, 0UL), before);
}

TEST_F(Wishes, TurnTheThemeDarkAndBack) {
  auto* theme = Dialog().findChildren<QComboBox*>().front();
  theme->setCurrentIndex(2);
  EXPECT_TRUE(Theme(QApplication::palette()).Dark());
  theme->setCurrentIndex(1);
  EXPECT_FALSE(Theme(QApplication::palette()).Dark());
  theme->setCurrentIndex(0);
}

TEST_F(Wishes, PutWordsBesideTheIconsOfTheToolbar) {
  const auto* toolbar = Run().window->findChild<QToolBar*>();
  EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonIconOnly);
  Run().MenuItem("Wor&ds on the Toolbar")->trigger();
  EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

TEST_F(Wishes, OfEarlierVersionsAreTakenOver) {
  MemorySettingsStore store;
  QSettings().setValue("session/reopen", true);
  EXPECT_TRUE(Preferences(store).Wants(Wish::kReopen));
  EXPECT_FALSE(QSettings().contains("session/reopen"));
  Preferences(store).Set(Wish::kReopen, 0);
  EXPECT_FALSE(Preferences(store).Wants(Wish::kReopen));
}

TEST_F(Wishes, AreTheUsualOnesWhereTheStoreHoldsNonsense) {
  MemorySettingsStore store;
  store.SaveSetting("HostPreferences", "TabWidth", "many");
  EXPECT_EQ(Preferences(store).Number(Wish::kTabWidth), 8);
}

TEST_F(Wishes, SayHowManyBackupsAreKeptOfAFile) {
  const std::string path = directory_.Put("user.con", "text");
  Run().window->OpenFiles({path});
  const auto saveTimes = [this](int times) {
    for (int i = 0; i < times; ++i) {
      Run().Editor(0).Type("x");
      Run().SaveInPlace();
    }
  };
  Run().window->Wishes().Set(Wish::kBackups, 3);
  saveTimes(6);
  EXPECT_EQ(Run().backups.List().size(), 3U);
  Run().window->Wishes().Set(Wish::kBackups, 5);
  saveTimes(6);
  EXPECT_EQ(Run().backups.List().size(), 5U);
  Restart();
  Run().window->OpenFiles({path});
  saveTimes(2);
  EXPECT_EQ(Run().backups.List().size(), 5U);
}

// --- File dialogs

TEST_F(Wishes, StartTheDialogsWhereTheDocumentIs) {
  const std::string path = directory_.Put("user.con", "text");
  Run().window->OpenFiles({path});
  Run().MenuItem("Save &As...")->trigger();
  ASSERT_EQ(Run().fakes.fileDialogs.requests.size(), 1U);
  EXPECT_EQ(Run().fakes.fileDialogs.requests[0].fileName, "user.con");
  EXPECT_EQ(Run().fakes.fileDialogs.requests[0].initDir + "user.con", path);
  Run().MenuItem("&Open...")->trigger();
  EXPECT_EQ(Run().fakes.fileDialogs.requests[1].fileName, "");
  EXPECT_EQ(Run().fakes.fileDialogs.requests[1].initDir + "user.con", path);
}

// --- The toolbar by keyboard

TEST_F(Wishes, OpenDropDownsByKeysAndMoveAmongButtons) {
  auto* toolbar = Run().window->findChild<QToolBar*>();
  auto* first = toolbar->widgetForAction(toolbar->actions().first());
  first->setFocus();
  QTest::keyClick(first, Qt::Key_Right);
  EXPECT_EQ(QApplication::focusWidget(), toolbar->widgetForAction(toolbar->actions()[1]));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(QApplication::focusWidget(), first);
  bool opened = false;
  QTimer::singleShot(0, [&] {
    if (QWidget* popup = QApplication::activePopupWidget()) {
      opened = true;
      popup->close();
    }
  });
  QTest::keyClick(first, Qt::Key_Down);
  EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace tessel::test
