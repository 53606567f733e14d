// Finding, reading and rewriting values, with the selection shown in the text.
#include <gtest/gtest.h>

#include "settings/Defines.h"
#include "support/EditorTrace.h"
#include "support/SelectionText.h"

namespace tessel {
namespace {

using test::Marked;
using test::SetMarked;

class Defines : public testing::Test {
 protected:
  /// The text after the value of `name` was selected.
  std::string ValueIn(const std::string& text, const std::string& name, bool wholeWord = true) {
    SetMarked(editor_, "[]" + text);
    FindDefine(editor_, name, wholeWord);
    SelectDefineValue(editor_, YesNoWrite::kSelectOnly);
    return Marked(editor_);
  }
  std::string Found(const std::string& marked, const std::string& name, bool wholeWord) {
    SetMarked(editor_, marked);
    position_ = FindDefine(editor_, name, wholeWord);
    return Marked(editor_);
  }

  ControlSet set_;
  RichTextBox editor_{set_, "rtbCon"};
  ComboBox box_{set_, "cmbweap"};
  Position position_ = 0;
  bool setting_ = false;
};

TEST_F(Defines, AreFoundWithoutRegardToCaseFromTheStartOfTheText) {
  EXPECT_EQ(Found("define a 1\ndefine A 2[]", "A", true), "define [a] 1\ndefine A 2");
  EXPECT_EQ(position_, 7);
}

TEST_F(Defines, AreFoundAsWholeWordsOrAnywhere) {
  EXPECT_EQ(Found("[]XSTEROID_AMOUNT STEROID_AMOUNT", "STEROID_AMOUNT", true),
            "XSTEROID_AMOUNT [STEROID_AMOUNT]");
  EXPECT_EQ(Found("[]XSTEROID_AMOUNT STEROID_AMOUNT", "STEROID_AMOUNT", false),
            "X[STEROID_AMOUNT] STEROID_AMOUNT");
  EXPECT_EQ(Found("[]define PISTOLAMMOAMOUNT 12", "define PISTOLAMMO", false),
            "[define PISTOLAMMO]AMOUNT 12");
}

TEST_F(Defines, AreFoundInCommentsToo) {
  EXPECT_EQ(Found("[]// QSIZE is big\ndefine QSIZE 64", "QSIZE", false),
            "// [QSIZE] is big\ndefine QSIZE 64");
}

TEST_F(Defines, ThatAreMissingLeaveTheSelection) {
  EXPECT_EQ(Found("define [A] 1", "B", true), "define [A] 1");
  EXPECT_EQ(position_, kNotFound);
  EXPECT_EQ(Found("define [A] 1", "", false), "define [A] 1");
  EXPECT_EQ(position_, kNotFound);
}

TEST_F(Defines, HaveTheirValueBeforeTheCommentOrTheLineEnd) {
  EXPECT_EQ(ValueIn("define A 100", "A"), "define A [100]");
  EXPECT_EQ(ValueIn("define A 100   // x", "A"), "define A [100]   // x");
  EXPECT_EQ(ValueIn("define A 100//x", "A"), "define A [100]//x");
  EXPECT_EQ(ValueIn("define A 100 \ndefine B 2", "A"), "define A [100] \ndefine B 2");
  EXPECT_EQ(ValueIn("define A 100\ndefine B 2", "A"), "define A [100]\ndefine B 2");
  EXPECT_EQ(ValueIn("define A    100\n", "A"), "define A    [100]\n");
}

TEST_F(Defines, NeverTakeTheCarriageReturnAlong) {
  EXPECT_EQ(ValueIn("define A 100\r\ndefine B 2", "A"), "define A [100]\r\ndefine B 2");
  EXPECT_EQ(ValueIn("define A 100  \r\ndefine B 2", "A"), "define A [100]  \r\ndefine B 2");
  EXPECT_EQ(ValueIn("define A 100 // x\r\n", "A"), "define A [100] // x\r\n");
}

TEST_F(Defines, HaveTheLastTokenAsTheirValue) {
  EXPECT_EQ(ValueIn("define A 1 2", "A"), "define A 1 [2]");
  EXPECT_EQ(ValueIn("define A // note", "A"), "define [A] // note");
  EXPECT_EQ(ValueIn("define A", "A"), "define [A]");
  EXPECT_EQ(ValueIn("define A 1/2", "A"), "define A [1]/2");
}

TEST_F(Defines, AreSplitAtBlanksOnly) {
  EXPECT_EQ(ValueIn("define X\t100", "X"), "define [X\t100]");
  EXPECT_EQ(ValueIn("define X 100\t// x", "X"), "define X [100\t]// x");
}

TEST_F(Defines, ReadAValueThatBeginsBeforeTheNameWhenNothingElseStandsThere) {
  EXPECT_EQ(ValueIn("one\r\ntwo", "two"), "[one\r\ntwo]");
  EXPECT_EQ(ValueIn("A/b", "A"), "[A]/b");
  EXPECT_EQ(ValueIn("", "A"), "[]");
}

TEST_F(Defines, WriteYesAndNoAndSelectThem) {
  const auto written = [&](YesNoWrite mode) {
    SetMarked(editor_, "[]define CAMERASDESTRUCTABLE MAYBE // x\r\n");
    FindDefine(editor_, "CAMERASDESTRUCTABLE", true);
    SelectDefineValue(editor_, mode);
    return Marked(editor_);
  };
  EXPECT_EQ(written(YesNoWrite::kYes), "define CAMERASDESTRUCTABLE [YES] // x\r\n");
  EXPECT_EQ(written(YesNoWrite::kNo), "define CAMERASDESTRUCTABLE [NO] // x\r\n");
  EXPECT_EQ(written(YesNoWrite::kSelectOnly), "define CAMERASDESTRUCTABLE [MAYBE] // x\r\n");
  EXPECT_EQ(written(static_cast<YesNoWrite>(2)), "define CAMERASDESTRUCTABLE [MAYBE] // x\r\n");
  EXPECT_EQ(written(static_cast<YesNoWrite>(-1)), "define CAMERASDESTRUCTABLE [MAYBE] // x\r\n");
}

TEST_F(Defines, ShowTheSelectionAgainOnceTheValueIsSelected) {
  editor_.SetHideSelection(true);
  SetMarked(editor_, "define [A] 1");
  SelectDefineValue(editor_, YesNoWrite::kSelectOnly);
  EXPECT_FALSE(editor_.HideSelection());
}

TEST_F(Defines, ReadYesOnlyFromExactlyThat) {
  const auto read = [&](const std::string& marked) {
    SetMarked(editor_, marked);
    return ReadYesNo(editor_, "A");
  };
  EXPECT_TRUE(read("[]define A YES // x"));
  EXPECT_FALSE(read("[]define A NO"));
  EXPECT_FALSE(read("[]define A yes"));
  EXPECT_FALSE(read("[]define A Yes"));
  EXPECT_FALSE(read("[]// settings\ndefine AB YES"));
  EXPECT_FALSE(read("[]"));
}

TEST_F(Defines, ReadTheTokenAtTheCaretWhenTheNameIsMissing) {
  SetMarked(editor_, "define B [] YES\n");
  EXPECT_TRUE(ReadYesNo(editor_, "A"));
  EXPECT_EQ(Marked(editor_), "define B  [YES]\n");
}

TEST_F(Defines, AreHiddenWhileTheyAreLookedUpAndShownAfterwards) {
  SetMarked(editor_, "[]define A YES");
  editor_.SetHideSelection(false);
  PlainScreenPointer pointer;
  test::EditorTrace trace(editor_, pointer);
  ReadYesNo(editor_, "A");
  const auto steps = trace.Take();
  ASSERT_FALSE(steps.empty());
  EXPECT_EQ(steps.front(), "selection hidden");
  EXPECT_EQ(steps.back(), "selection shown");
}

TEST_F(Defines, CopyTheirValueIntoTheBoxWhileTheFlagIsSet) {
  SetMarked(editor_, "define [A] 100 // x");
  editor_.SetHideSelection(true);
  std::vector<bool> flags;
  const Subscription change = box_.Change.Connect([&] { flags.push_back(setting_); });
  ShowDefineValue(editor_, 7, box_, setting_);
  EXPECT_EQ(box_.Text(), "100");
  EXPECT_EQ(flags, std::vector<bool>{true});
  EXPECT_FALSE(setting_);
  EXPECT_FALSE(editor_.HideSelection());
  EXPECT_EQ(Marked(editor_), "define A [100] // x");
}

TEST_F(Defines, ThatWereNotFoundLeaveBoxAndEditorAlone) {
  SetMarked(editor_, "define [A] 100");
  editor_.SetHideSelection(true);
  box_.SetText("old");
  ShowDefineValue(editor_, kNotFound, box_, setting_);
  EXPECT_EQ(box_.Text(), "old");
  EXPECT_TRUE(editor_.HideSelection());
  EXPECT_EQ(Marked(editor_), "define [A] 100");
}

TEST_F(Defines, AreWrittenOverExactlyTheSelectedToken) {
  SetMarked(editor_, "define A   [100]  // x");
  editor_.SetHideSelection(true);
  WriteSelectedValue(editor_, "7", false);
  EXPECT_EQ(Marked(editor_), "define A   [7]  // x");
  EXPECT_TRUE(editor_.HideSelection());
  WriteSelectedValue(editor_, "not a number", false);
  EXPECT_EQ(Marked(editor_), "define A   not a [number]  // x");
}

TEST_F(Defines, AreNotWrittenWithTheFlagSetOrNothingSelected) {
  SetMarked(editor_, "define A [100]");
  WriteSelectedValue(editor_, "7", true);
  EXPECT_EQ(Marked(editor_), "define A [100]");
  SetMarked(editor_, "define A []100");
  WriteSelectedValue(editor_, "7", false);
  EXPECT_EQ(Marked(editor_), "define A []100");
}

TEST_F(Defines, AreReplacedAlsoWhereNothingIsSelected) {
  SetMarked(editor_, "define A []100");
  ReplaceValue(editor_, "5");
  EXPECT_EQ(Marked(editor_), "define A [5]100");
}

}  // namespace
}  // namespace tessel
