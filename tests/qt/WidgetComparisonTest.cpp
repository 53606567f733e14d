// The drive compares widgets with models: each property of a view, changed behind the models'
// backs, is found.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>

#include "TesselWidgetFixture.h"
#include "drive/qt/QtProgram.h"
#include "drive/qt/WidgetComparison.h"
#include "qt/views/ToolbarView.h"

namespace tessel::test {
namespace {

using drive::CompareWidgets;
using drive::Difference;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Sci = QsciScintillaBase;

class WidgetComparison : public TesselWidgetTest {
 protected:
  WidgetComparison() {
    Open("A.con", "// a comment\r\ndefine MAXPLAYERHEALTH 100\r\n\x80 and the rest\r\n");
    QApplication::processEvents();
  }

  /// "control: property" of each difference.
  std::vector<std::string> Found() {
    std::vector<std::string> found;
    for (const Difference& difference : CompareWidgets(widget_)) {
      found.push_back(difference.control + ": " + difference.property);
    }
    return found;
  }
  void ShowPage(SettingsPage page) {
    Controls().tbsCon.Press(page + 1);
    QApplication::processEvents();
  }
  ScintillaView& View() { return *widget_.CurrentEditorView(); }
};

TEST_F(WidgetComparison, FindsNothingOnAnyPage) {
  for (int page = 0; page < kSettingsPages; ++page) {
    ShowPage(static_cast<SettingsPage>(page));
    EXPECT_THAT(Found(), IsEmpty()) << page;
  }
}

TEST_F(WidgetComparison, FindsWhatStandsAPixelAside) {
  HostedControls& c = Controls();
  for (const Control* control : std::initializer_list<const Control*>{
           &c.tbToolBar, &c.picCon[0], &c.fraCon[0], &c.picRtb, &c.rtbCon[0]}) {
    QWidget& widget = *widget_.WidgetFor(*control);
    const QRect place = widget.geometry();
    for (const QRect& wrong : {place.translated(1, 0), place.translated(0, 1),
                               place.adjusted(0, 0, 1, 0), place.adjusted(0, 0, 0, -1)}) {
      widget.setGeometry(wrong);
      EXPECT_THAT(Found(), ElementsAre(control->Name() + ": place"));
      widget.setGeometry(place);
    }
  }
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(WidgetComparison, FindsATabStripThatStandsAPixelAside) {
  for (const TabStrip* strip : {&Controls().tbsCon, &Controls().tbsRtb}) {
    QWidget& whole = *widget_.WidgetFor(*strip)->parentWidget();
    whole.move(whole.x() + 1, whole.y());
    EXPECT_THAT(Found(), ElementsAre(strip->Name() + ": place"));
    whole.move(whole.x() - 1, whole.y());
  }
}

TEST_F(WidgetComparison, TellsWhatIsExpectedAndWhatIsThere) {
  QWidget& toolbar = *WidgetFor(Controls().tbToolBar);
  toolbar.setGeometry(1, 2, 300, 20);
  const auto found = CompareWidgets(widget_);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(SentenceOf(found[0]), "tbToolBar: place is 1,2 300x20, expected 0,0 800x28");
}

TEST_F(WidgetComparison, FindsAControlOfAnotherSize) {
  widget_.Tessel().Controls().scaleWidth += 15;
  EXPECT_THAT(Found(), ElementsAre("ucTessel: size"));
}

TEST_F(WidgetComparison, FindsWhatIsHiddenOrDisabledOnEveryPage) {
  for (int page = 0; page < kSettingsPages; ++page) {
    ShowPage(static_cast<SettingsPage>(page));
    for (const Control* control : Controls().all.All()) {
      QWidget* widget = widget_.WidgetFor(*control);
      if (widget == nullptr || !widget->isVisible()) continue;
      const std::string name =
          control->Name() + (control->Index() > 0 ? " " + std::to_string(control->Index()) : "");
      const QRect place = widget->geometry();
      widget->hide();
      EXPECT_THAT(Found(), testing::Contains(name + ": visible"));
      widget->show();
      widget->setGeometry(place);
      if (widget != widget_.WidgetFor(Controls().tbsCon) &&
          widget != widget_.WidgetFor(Controls().tbsRtb)) {
        widget->setEnabled(!control->Enabled());
        EXPECT_THAT(Found(), testing::Contains(name + ": enabled"));
        widget->setEnabled(control->Enabled());
      }
    }
  }
}

TEST_F(WidgetComparison, FindsWhatIsShownThoughItsPageIsNot) {
  WidgetFor(Controls().picCon[kMiscPage])->show();
  EXPECT_THAT(Found(), testing::Contains("picCon 3: visible"));
}

TEST_F(WidgetComparison, FindsOtherCaptionsAndChecks) {
  WidgetFor<QAbstractButton>(Controls().cmdMap)->setText("x");
  WidgetFor<QAbstractButton>(Controls().optCamYes)->setText("x");
  WidgetFor<QAbstractButton>(Controls().optFreezNo)->setChecked(!Controls().optFreezNo.Value());
  WidgetFor<QLabel>(Controls().lblValue[kMiscPage])->setText("x");
  EXPECT_THAT(Found(), testing::UnorderedElementsAre("cmdMap: caption", "optCamYes: caption",
                                                     "optFreezNo: value", "lblValue 3: caption"));
}

TEST_F(WidgetComparison, FindsOtherTextsInBoxes) {
  const auto quietly = [](QObject& object, const auto& change) {
    const QSignalBlocker quiet(object);
    change();
  };
  auto& title = *WidgetFor<QLineEdit>(Controls().txtTitle);
  quietly(title, [&] { title.setText("x"); });
  auto& value = *WidgetFor<QComboBox>(Controls().cmbweap[kPlayerPage]);
  quietly(value, [&] { value.lineEdit()->setText("9"); });
  EXPECT_THAT(Found(), testing::UnorderedElementsAre("txtTitle: text", "cmbweap: text"));
}

TEST_F(WidgetComparison, FindsOtherEntriesAndOtherSelectedOnes) {
  const auto at = [this](const ListBox& model) { return WidgetFor<QListWidget>(model); };
  at(Controls().lstPlayers)->item(2)->setText("x");
  delete at(Controls().lstEnemy)->takeItem(0);
  const QSignalBlocker quiet(at(Controls().lstWeapInfo));
  at(Controls().lstWeapInfo)->setCurrentRow(1);
  const QSignalBlocker alsoQuiet(at(Controls().lstConMisc));
  at(Controls().lstConMisc)->setCurrentRow(0, QItemSelectionModel::Select);
  const auto found = Found();
  for (const char* difference : {"lstPlayers: entry 2", "lstEnemy: number of entries",
                                 "lstEnemy: entry 0", "lstWeapInfo: current entry",
                                 "lstWeapInfo: selected entry", "lstConMisc: selected entry"}) {
    EXPECT_THAT(found, testing::Contains(difference));
  }
}

TEST_F(WidgetComparison, FindsAnotherEntryOfAComboBox) {
  auto& episode = *WidgetFor<QComboBox>(Controls().cboEpisode);
  const QSignalBlocker quiet(episode);
  episode.addItem("x");
  episode.setCurrentIndex(-1);  // the toolkit selects the first one
  EXPECT_THAT(Found(), ElementsAre("cboEpisode: number of entries"));
}

TEST_F(WidgetComparison, FindsOtherTabs) {
  auto& bar = *WidgetFor<QTabBar>(Controls().tbsRtb);
  bar.setTabText(0, "x");
  bar.setTabIcon(0, QIcon());
  EXPECT_THAT(Found(), ElementsAre("tbsRtb: tab 1's caption", "tbsRtb: tab 1's image"));
  const QSignalBlocker quiet(bar);
  bar.addTab("y");
  bar.setCurrentIndex(1);
  EXPECT_THAT(Found(), testing::IsSupersetOf({"tbsRtb: number of tabs", "tbsRtb: selected tab"}));
}

TEST_F(WidgetComparison, FindsOtherButtonsAndDropDowns) {
  const auto& bar = *WidgetFor<ToolbarView>(Controls().tbToolBar);
  bar.ActionOf("Cut")->setEnabled(!Controls().tbToolBar.Find("Cut")->enabled);
  bar.ActionOf("Copy")->setToolTip("x");
  bar.ActionOf("Colorize")->setChecked(!Controls().tbToolBar.Pressed("Colorize"));
  bar.ActionOf("Tools")->menu()->actions().first()->setText("x");
  bar.ActionOf("FileNew")->menu()->addAction("x");
  EXPECT_THAT(Found(), ElementsAre("tbToolBar: FileNew's number of items", "tbToolBar: Cut enabled",
                                   "tbToolBar: Copy's tool tip", "tbToolBar: Tools's item 1",
                                   "tbToolBar: Colorize pressed"));
}

TEST_F(WidgetComparison, FindsOtherItemsOfTheEditorMenu) {
  auto& menu = *WidgetFor<QMenu>(Controls().mnuRtbPopup);
  menu.findChild<QAction*>("mnuRtbPopupFileOpen")->setText("x");
  QAction& undo = *menu.findChild<QAction*>("mnuRtbPopupEditUndo");
  undo.setEnabled(!undo.isEnabled());
  EXPECT_THAT(Found(), testing::IsSupersetOf({"mnuRtbPopup: caption of mnuRtbPopupFileOpen",
                                              "mnuRtbPopup: mnuRtbPopupEditUndo enabled"}));
}

TEST_F(WidgetComparison, FindsAnotherTextInTheEditor) {
  View().SendScintilla(Sci::SCI_INSERTTEXT, 3UL, "x");
  const auto found = CompareWidgets(widget_);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_THAT(SentenceOf(found[0]), HasSubstr("rtbCon: text is \"// xa comment"));
}

TEST_F(WidgetComparison, FindsAnotherSelectionInTheEditor) {
  View().SendScintilla(Sci::SCI_SETSEL, 3UL, 5L);
  EXPECT_THAT(Found(),
              ElementsAre("rtbCon: start of the selection", "rtbCon: length of the selection"));
}

TEST_F(WidgetComparison, FindsAByteOfAnotherColour) {
  const int black = static_cast<int>(View().SendScintilla(Sci::SCI_GETSTYLEAT, 20UL));
  View().SendScintilla(Sci::SCI_STARTSTYLING, 4UL, 0L);
  View().SendScintilla(Sci::SCI_SETSTYLING, 1UL, static_cast<long>(black));
  const auto found = CompareWidgets(widget_);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(SentenceOf(found[0]), "rtbCon: colour of byte 4 is 0x000000, expected 0x008000");
}

TEST_F(WidgetComparison, FindsAColourThatIsPaintedOtherwise) {
  const auto green = static_cast<unsigned long>(View().SendScintilla(Sci::SCI_GETSTYLEAT, 0UL));
  View().SendScintilla(Sci::SCI_STYLESETFORE, green, 0x112233L);
  EXPECT_THAT(Found(), ElementsAre("rtbCon: paint of a colour"));
}

TEST_F(WidgetComparison, LeavesLiveColoursAlone) {
  View().SetLiveColours(true);
  QApplication::processEvents();
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(WidgetComparison, LooksAtAFormWhileItIsOpen) {
  Form& form = *widget_.Tessel().Forms().front();
  form.Show();
  QApplication::processEvents();
  EXPECT_THAT(Found(), IsEmpty());
  QWidget& dialog = *widget_.DialogFor(form);
  dialog.setWindowTitle("x");
  widget_.WidgetFor(*form.controls.All().front())->hide();
  EXPECT_THAT(Found(), ElementsAre(form.Name() + ": caption",
                                   form.controls.All().front()->Name() + ": visible"));
  dialog.hide();
  EXPECT_THAT(Found(), testing::Contains(form.Name() + ": visible"));
  form.Hide();
  EXPECT_THAT(Found(), IsEmpty());
}

TEST(WidgetPlayerComparison, TellsTheDriveWhatItFound) {
  FakeServices services;
  MemoryClipboard clipboard;
  const auto player = drive::MakeWidgetPlayer(clipboard);
  player->Open(services.Get());
  player->Settle();
  EXPECT_THAT(player->Differences(), IsEmpty());
  for (QWidget* window : QApplication::topLevelWidgets()) {
    for (auto* toolbar : window->findChildren<ToolbarView*>()) toolbar->hide();
  }
  EXPECT_THAT(player->Differences(), ElementsAre("tbToolBar: visible is false, expected true"));
  player->Close();
}

}  // namespace
}  // namespace tessel::test
