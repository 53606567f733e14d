// The routing of buttons, drop-down items and popup items, and what errors do at its boundary.
#include <algorithm>

#include "control/Commands.h"
#include "models/Form.h"
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Commands : public TesselTest {
 protected:
  std::string Popup(const std::string& marked, const std::string& item) {
    SetDocument(marked);
    C().mnuRtbPopup.Choose(item);
    return Document();
  }
  void PressItem(const char* button, std::string_view key) {
    const auto& menu = C().tbToolBar.Find(button)->menu;
    const auto item = std::ranges::find(menu, key, &ButtonMenuItem::key);
    ASSERT_NE(item, menu.end()) << key;
    C().tbToolBar.PressMenuItem(button, static_cast<int>(item - menu.begin()) + 1);
  }
  std::string Tool(const std::string& marked, std::string_view key) {
    SetDocument(marked);
    PressItem("Tools", key);
    return Document();
  }
  /// Presses a button that opens the randomizer and returns its form's caption.
  std::string Randomizes(const std::function<void()>& gesture) {
    std::string caption;
    world_.forms.scripts.emplace_back([&](Form& form) { caption = form.Caption(); });
    gesture();
    return caption;
  }
};

TEST_F(Commands, CutCopyAndPasteWorkOnTheSelection) {
  for (const bool popup : {false, true}) {
    const auto run = [&](const std::string& key) {
      popup ? C().mnuRtbPopup.Choose("mnuRtbPopupEdit" + key) : C().tbToolBar.Press(key);
    };
    SetDocument("a [b] c");
    run("Copy");
    EXPECT_EQ(world_.clipboard.GetText(), "b");
    EXPECT_EQ(Document(), "a [b] c");
    SetDocument("a [bc]");
    run("Cut");
    EXPECT_EQ(world_.clipboard.GetText(), "bc");
    EXPECT_EQ(Document(), "a []");
    SetDocument("[x] y");
    run("Paste");
    EXPECT_EQ(Document(), "bc[] y");
  }
}

TEST_F(Commands, CutWithNothingSelectedEmptiesTheClipboard) {
  world_.clipboard.SetText("old");
  SetDocument("a[]b");
  C().tbToolBar.Press("Cut");
  EXPECT_EQ(world_.clipboard.GetText(), "");
  EXPECT_EQ(Document(), "a[]b");
}

TEST_F(Commands, OfTheToolsDropDownChangeTheSelection) {
  EXPECT_EQ(Tool("a [b] c", "CommentBlock"), "a /* b */\n[] c");
  EXPECT_EQ(Tool("a [b] c", "CommentLine"), "a // b[] c");
  EXPECT_EQ(Tool("a [b] c", "Uppercase"), "a B[] c");
  EXPECT_EQ(Tool("a [B] c", "Lowercase"), "a b[] c");
  EXPECT_EQ(Tool("a [b] c", "Indent"), "a \tb[] c");
  EXPECT_EQ(Tool("a [b] c", "spc2"), "a [b] c");
}

TEST_F(Commands, OfTheToolsButtonAreItsFirstItem) {
  SetDocument("a [b] c");
  C().tbToolBar.Press("Tools");
  EXPECT_EQ(Document(), "a /* b */\n[] c");
}

TEST_F(Commands, ShowParametersFromBothMenus) {
  SetDocument("[]actor X");
  PressItem("Tools", "Parameter");
  EXPECT_EQ(C().tbsCon.Selected(), 6);
  EXPECT_EQ(C().txtSearch.Text(), "actor");
  SetDocument("actor []state");
  C().mnuRtbPopup.Choose("mnuRtbPopupToolsParameters");
  EXPECT_EQ(C().txtSearch.Text(), "state");
}

TEST_F(Commands, OfThePopupChangeTheSelection) {
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupToolsUpper"), "a B[] c");
  EXPECT_EQ(Popup("a [B] c", "mnuRtbPopupToolsLower"), "a b[] c");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupToolsMremark"), "a /* b */\n[] c");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupToolsRremark"), "a // b[] c");
  EXPECT_EQ(Popup("[// b] c", "mnuRtbPopupToolsUnremark"), "b[] c");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupToolsIndent"), "a \tb[] c");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupEditDelete"), "a [] c");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopupEditSel"), "[a b c]");
  EXPECT_EQ(Popup("a [b] c", "mnuRtbPopup"), "a [b] c");
}

TEST_F(Commands, UndoTheLastEditOnce) {
  SetDocument("a []b");
  Current().Type("x");
  Current().Type("y");
  C().mnuRtbPopup.Choose("mnuRtbPopupEditUndo");
  EXPECT_EQ(Document(), "a x[]b");
  EXPECT_THAT(world_.focus.moves, ElementsAre(std::pair{std::string("rtbCon"), 0}));
  C().mnuRtbPopup.Choose("mnuRtbPopupEditUndo");
  EXPECT_EQ(Document(), "a x[]b");
}

TEST_F(Commands, FindOpensItsForm) {
  C().tbToolBar.Press("Find");
  C().mnuRtbPopup.Choose("mnuRtbPopupFind");
  EXPECT_THAT(world_.forms.shown, ElementsAre("frmFind", "frmFind"));
}

TEST_F(Commands, RandomizeTheSectionOfTheirKey) {
  EXPECT_EQ(Randomizes([&] { C().tbToolBar.Press("RandAll"); }), "Randomize All Sections");
  const std::vector<std::string> sections = {"Player", "Weapon", "Enemy", "Misc"};
  for (int i = 0; i < 4; ++i) {
    const std::string caption = sections[static_cast<std::size_t>(i)] + " Section Randomizer";
    EXPECT_EQ(Randomizes([&] { C().tbToolBar.PressMenuItem("RandSec", i + 1); }), caption);
    C().tbsCon.Press(i + 1);
    EXPECT_EQ(Randomizes([&] { C().tbToolBar.Press("RandSec"); }), caption);
  }
}

TEST_F(Commands, RandomizeTheSelectedSectionOfAHiddenPanelToo) {
  C().tbsCon.Press(3);
  C().tbToolBar.Press("ShowTabs");
  EXPECT_EQ(Randomizes([&] { C().tbToolBar.Press("RandSec"); }), "Enemy Section Randomizer");
}

TEST_F(Commands, StandBehindEveryButtonAndItem) {
  for (const ToolbarButton& button : C().tbToolBar.Buttons()) {
    if (button.style == ButtonStyle::kSeparator) continue;
    EXPECT_TRUE(IsCommand(Surface::kButton, button.key)) << button.key;
    for (const ButtonMenuItem& item : button.menu) {
      EXPECT_NE(IsCommand(Surface::kDropDownItem, item.key), item.IsSeparator()) << item.key;
    }
  }
  for (const MenuItem* item : C().mnuRtbPopup.Leaves()) {
    EXPECT_TRUE(IsCommand(Surface::kPopupItem, item->name)) << item->name;
  }
}

TEST_F(Commands, OfUnknownKeysDoNothing) {
  C().mnuRtbPopup.Choose("mnurtbpopupfind");
  C().mnuRtbPopup.Choose("");
  C().tbToolBar.Add({"find", "another"});
  C().tbToolBar.Press("find");
  C().tbToolBar.InsertMenuItem("Tools", 1, {"unknown", "uppercase", ""});
  SetDocument("a [b] c");
  C().tbToolBar.PressMenuItem("Tools", 1);
  EXPECT_EQ(Document(), "a [b] c");
  EXPECT_THAT(world_.forms.shown, IsEmpty());
}

TEST_F(Commands, WorkOnTheCurrentDocument) {
  Open("/a.con", "a");
  Open("/b.con", "b");
  C().mnuRtbPopup.Choose("mnuRtbPopupEditSel");
  PressItem("Tools", "Uppercase");
  EXPECT_EQ(Editor(0).Text(), "a");
  EXPECT_EQ(Editor(1).Text(), "B");
}

class EditorPopup : public TesselTest {
 protected:
  void SetUp() override {
    opened_ = C().mnuRtbPopup.Opened.Connect([this] { ++times_; });
  }
  bool Enabled(const std::string& item) { return C().mnuRtbPopup.Find(item)->enabled; }

  Subscription opened_;
  int times_ = 0;
};

TEST_F(EditorPopup, OpensForEveryButtonButTheLeft) {
  Current().ReleaseMouse(MouseButton::kLeft);
  EXPECT_EQ(times_, 0);
  Current().ReleaseMouse(MouseButton::kRight);
  Current().ReleaseMouse(MouseButton::kMiddle);
  EXPECT_EQ(times_, 2);
  Open("/a.con", "A");
  Open("/b.con", "B");
  Current().ReleaseMouse(MouseButton::kRight);
  EXPECT_EQ(times_, 3);
}

TEST_F(EditorPopup, OffersSavingWhenThereIsText) {
  for (const char* text : {"", "x", ""}) {
    Current().SetText(text);
    Current().ReleaseMouse(MouseButton::kRight);
    EXPECT_EQ(Enabled("mnuRtbPopupFileSave"), *text != '\0');
    EXPECT_EQ(Enabled("mnuRtbPopupFileSaveAs"), *text != '\0');
    EXPECT_TRUE(Enabled("mnuRtbPopupFileOpen"));
  }
}

TEST_F(EditorPopup, OffersUndoWhenThereIsSomethingToUndo) {
  Current().ReleaseMouse(MouseButton::kRight);
  EXPECT_FALSE(Enabled("mnuRtbPopupEditUndo"));
  Current().Type("x");
  Current().ReleaseMouse(MouseButton::kRight);
  EXPECT_TRUE(Enabled("mnuRtbPopupEditUndo"));
}

class Errors : public TesselTest {};

TEST_F(Errors, OfTheOutermostCommandAreShownOnce) {
  Control().Run([&] {
    C().lstPlayers.SetListIndex(0);  // an event on the way, whose command passes the error on
    throw RuntimeError("Broken.");
  });
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("Broken.")));
  Control().Run([] { throw RuntimeError("Again."); });
  EXPECT_EQ(world_.messages.shown.size(), 2U);
}

TEST_F(Errors, OfANestedEventEndTheWholeCommand) {
  Open("/a.con", "define MAXPLAYERHEALTH 1");
  const Subscription broken = Control().OpenDocuments().Shown.Connect(
      [](const tessel::Document&) { throw RuntimeError("Broken."); });
  Control().Run([&] {
    C().tbsRtb.Press(1);
    ADD_FAILURE() << "the outer command went on";
  });
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("Broken.")));
}

class HostCommands : public TesselTest {};

TEST_F(HostCommands, AreRefusedWhileAnotherCommandIsOnItsWay) {
  Open("/a.con", "A");
  world_.files.files["/b.con"] = "B";
  bool ran = false;
  EXPECT_TRUE(Control().Run([&] {
    EXPECT_FALSE(Control().OpenFile("/b.con"));
    EXPECT_FALSE(Control().ReloadDocument());
    EXPECT_FALSE(Control().ShowAsUntitled("text"));
    EXPECT_FALSE(Control().Convert());
    EXPECT_FALSE(Control().CloseAll());
    EXPECT_FALSE(Control().Run([] { ADD_FAILURE() << "a command in a command"; }));
    ran = true;
  }));
  EXPECT_TRUE(ran);
  EXPECT_EQ(Captions(), std::vector<std::string>{"a.con"});
  EXPECT_TRUE(world_.messages.shown.empty());
  EXPECT_TRUE(Control().OpenFile("/b.con"));
}

TEST_F(Errors, PutEditorAndPointerBackBeforeTheMessage) {
  Open("/a.con", "A");
  EditorTrace trace(Current(), world_.pointer);
  world_.messages.meanwhile = [&] {
    EXPECT_EQ(Current().Left(), 0);
    EXPECT_TRUE(Current().Visible());
    EXPECT_EQ(world_.pointer.Shape(), PointerShape::kDefault);
  };
  Control().Run([&] {
    world_.pointer.SetShape(PointerShape::kHourglass);
    Current().SetVisible(false);
    Current().SetLeft(-20000);
    throw RuntimeError("Broken.");
  });
  EXPECT_THAT(trace.Take(),
              ElementsAre("pointer 11", "hidden", "left -20000", "pointer 0", "visible", "left 0"));
  EXPECT_EQ(world_.messages.shown.size(), 1U);
}

TEST_F(Errors, InAFormsHandlerLeaveTheFormOpen) {
  bool openAfterwards = false;
  world_.forms.scripts.emplace_back([&](Form& form) {
    Control().Run([] { throw RuntimeError("Broken."); });
    openAfterwards = form.Visible();
  });
  C().tbToolBar.Press("Find");
  EXPECT_TRUE(openAfterwards);
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("Broken.")));
}

TEST_F(Errors, BehindAFormStillBelongToTheCommandThatOpenedIt) {
  Control().Run([&] {
    C().tbToolBar.Press("Find");
    throw RuntimeError("Broken.");
  });
  EXPECT_EQ(world_.messages.shown.size(), 1U);
}

}  // namespace
}  // namespace tessel::test
