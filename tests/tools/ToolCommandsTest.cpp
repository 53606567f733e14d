// The tool and edit commands, on the routes that a person takes to them.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/ControlFixture.h"

namespace tessel {
namespace {

class ToolCommands : public test::ControlFixture {
 protected:
  std::string AfterPopup(const std::string& item, std::string_view marked) {
    Given(marked);
    Choose(item);
    return Shown();
  }
  std::string AfterToolbar(std::string_view key, std::string_view marked) {
    Given(marked);
    PressItem("Tools", key);
    return Shown();
  }
};

struct Route {
  const char* item;
  const char* key;
  const char* ofSelection;  // what becomes of "x [a\r\nB] y"
  const char* atCaret;      // what becomes of "x [] y"
};

constexpr Route kRoutes[] = {
    {"mnuRtbPopupToolsUpper", "Uppercase", "x A\r\nB[] y", "x [] y"},
    {"mnuRtbPopupToolsLower", "Lowercase", "x a\r\nb[] y", "x [] y"},
    {"mnuRtbPopupToolsMremark", "CommentBlock", "x /* a\r\nB */\n[] y", "x /*  */\n[] y"},
    {"mnuRtbPopupToolsRremark", "CommentLine", "x // a\r\nB[] y", "x // [] y"},
    {"mnuRtbPopupToolsIndent", "Indent", "x \ta\r\n\tB[] y", "x \t[] y"},
};

TEST_F(ToolCommands, ReplaceTheSelectionAndEndBehindIt) {
  for (const Route& route : kRoutes) {
    EXPECT_EQ(AfterPopup(route.item, "x [a\r\nB] y"), route.ofSelection) << route.item;
    EXPECT_EQ(AfterToolbar(route.key, "x [a\r\nB] y"), route.ofSelection) << route.key;
  }
}

TEST_F(ToolCommands, InsertAtTheCaretWhenNothingIsSelected) {
  for (const Route& route : kRoutes) {
    EXPECT_EQ(AfterPopup(route.item, "x [] y"), route.atCaret) << route.item;
    EXPECT_EQ(AfterToolbar(route.key, "x [] y"), route.atCaret) << route.key;
  }
}

TEST_F(ToolCommands, TakeARemarkOffAgain) {
  EXPECT_EQ(AfterPopup("mnuRtbPopupToolsUnremark", "x [/* a */\n] y"), "x a[] y");
  EXPECT_EQ(AfterPopup("mnuRtbPopupToolsUnremark", "x [// a] y"), "x a[] y");
  EXPECT_EQ(AfterPopup("mnuRtbPopupToolsUnremark", "x [a] y"), "x a[] y");
}

TEST_F(ToolCommands, RunTheBlockCommentWhenTheToolsButtonItselfIsPressed) {
  Given("[a]");
  Press("Tools");
  EXPECT_EQ(Shown(), "/* a */\n[]");
}

TEST_F(ToolCommands, WorkOnTheCurrentDocumentAndMarkItModified) {
  services_.files.files["/c/user.con"] = "abc";
  control_.OpenFile("/c/user.con");
  ASSERT_EQ(ImageOfTab(1), "BlackDot");
  Editor().SelectByHand(0, 2);
  PressItem("Tools", "Uppercase");
  EXPECT_EQ(Shown(), "AB[]c");
  EXPECT_EQ(ImageOfTab(1), "RedDot");
}

TEST_F(ToolCommands, IndentALastBreakOntoTheNextLine) {
  EXPECT_EQ(AfterToolbar("Indent", "[a\r\n]b"), "\ta\r\n\t[]b");
}

using EditCommands = ToolCommands;

TEST_F(EditCommands, UndoTakesTheLastEditBackAndMovesTheFocus) {
  Given("one [two]");
  Choose("mnuRtbPopupEditDelete");
  ASSERT_EQ(Shown(), "one []");
  Choose("mnuRtbPopupEditUndo");
  EXPECT_EQ(Shown(), "one two[]");
  using Moves = std::vector<std::pair<std::string, int>>;
  EXPECT_EQ(services_.focus.moves, (Moves{{"rtbCon", 0}}));
}

TEST_F(EditCommands, UndoIsOneLevelDeep) {
  Given("[]");
  Editor().Type("a");
  Editor().Type("b");
  Choose("mnuRtbPopupEditUndo");
  ASSERT_EQ(Shown(), "a[]");
  EXPECT_FALSE(Editor().CanUndo());
  EXPECT_FALSE(Editor().CanRedo());
  Choose("mnuRtbPopupEditUndo");
  EXPECT_EQ(Shown(), "a[]");
}

TEST_F(EditCommands, UndoIsOfferedWhenThereIsAnEditToTakeBack) {
  const auto offered = [this] {
    Editor().ReleaseMouse(MouseButton::kRight);
    return Controls().mnuRtbPopup.Find("mnuRtbPopupEditUndo")->enabled;
  };
  Given("[]");
  EXPECT_FALSE(offered());
  Editor().Type("a");
  EXPECT_TRUE(offered());
  Choose("mnuRtbPopupEditUndo");
  EXPECT_FALSE(offered());
}

TEST_F(EditCommands, CopyLeavesTheTextAndTheSelection) {
  for (const bool byToolbar : {false, true}) {
    services_.clipboard.SetText("old");
    Given("a [b] c");
    byToolbar ? Press("Copy") : Choose("mnuRtbPopupEditCopy");
    EXPECT_EQ(Shown(), "a [b] c");
    EXPECT_EQ(services_.clipboard.GetText(), "b");
  }
}

TEST_F(EditCommands, CutMovesTheSelectionToTheClipboard) {
  for (const bool byToolbar : {false, true}) {
    Given("a [b] c");
    byToolbar ? Press("Cut") : Choose("mnuRtbPopupEditCut");
    EXPECT_EQ(Shown(), "a [] c");
    EXPECT_EQ(services_.clipboard.GetText(), "b");
  }
}

TEST_F(EditCommands, CutOfNothingClearsTheClipboardAndKeepsTheText) {
  for (const bool byToolbar : {false, true}) {
    services_.clipboard.SetText("old");
    Given("a [] c");
    byToolbar ? Press("Cut") : Choose("mnuRtbPopupEditCut");
    EXPECT_EQ(Shown(), "a [] c");
    EXPECT_EQ(services_.clipboard.GetText(), "");
  }
}

TEST_F(EditCommands, CopyOfNothingClearsTheClipboard) {
  for (const bool byToolbar : {false, true}) {
    services_.clipboard.SetText("old");
    Given("a [] c");
    byToolbar ? Press("Copy") : Choose("mnuRtbPopupEditCopy");
    EXPECT_EQ(Shown(), "a [] c");
    EXPECT_EQ(services_.clipboard.GetText(), "");
  }
}

TEST_F(EditCommands, PasteOfNothingDeletesTheSelection) {
  for (const bool byToolbar : {false, true}) {
    services_.clipboard.SetText("");
    Given("a [b] c");
    byToolbar ? Press("Paste") : Choose("mnuRtbPopupEditPaste");
    EXPECT_EQ(Shown(), "a [] c");
  }
}

TEST_F(EditCommands, PasteReplacesTheSelection) {
  for (const bool byToolbar : {false, true}) {
    services_.clipboard.SetText("x\r\ny");
    Given("a [b] c");
    byToolbar ? Press("Paste") : Choose("mnuRtbPopupEditPaste");
    EXPECT_EQ(Shown(), "a x\r\ny[] c");
  }
}

TEST_F(EditCommands, DeleteLeavesTheClipboardAlone) {
  services_.clipboard.SetText("old");
  EXPECT_EQ(AfterPopup("mnuRtbPopupEditDelete", "a [b] c"), "a [] c");
  EXPECT_EQ(services_.clipboard.GetText(), "old");
}

TEST_F(EditCommands, SelectAllShowsTheSelectionWithoutTheFocus) {
  Editor().SetHideSelection(true);
  EXPECT_EQ(AfterPopup("mnuRtbPopupEditSel", "a\r\n[b] c\r\n"), "[a\r\nb c\r\n]");
  EXPECT_FALSE(Editor().HideSelection());
}

TEST_F(EditCommands, SelectAllOfAnEmptyTextSelectsNothing) {
  EXPECT_EQ(AfterPopup("mnuRtbPopupEditSel", "[]"), "[]");
}

}  // namespace
}  // namespace tessel
