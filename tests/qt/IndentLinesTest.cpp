// What a driver without a screen does for a tab over lines is what the Tab key does in the editor.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "ScintillaViewFixture.h"
#include "drive/IndentLines.h"

namespace tessel {
namespace {

struct IndentLines : ScintillaViewFixture {
  ControlSet others;
  RichTextBox plain{others, "rtbCon"};
};

RC_GTEST_FIXTURE_PROP(IndentLines, IsWhatTheTabKeyDoes, ()) {
  const auto pieces = *rc::gen::container<std::vector<std::string>>(
      rc::gen::element<std::string>("a", " ", "\t", "\r\n", "\n", "\r", "\x80"));
  std::string text;
  for (const std::string& piece : pieces) text += piece;
  const auto start = *rc::gen::inRange<Position>(0, std::ssize(text) + 1);
  const auto length = *rc::gen::inRange<Position>(0, std::ssize(text) - start + 1);
  for (RichTextBox* editor : {&plain, &model}) {
    editor->SetText(text);
    editor->SetSelStart(0);
    editor->SetSelLength(std::ssize(text) / 2);
    editor->SetSelColor(0xC00000);
    editor->SelectByHand(start, length);
  }
  RC_PRE(drive::SelectsOverLines(plain));
  drive::IndentLines(plain);
  Press(Qt::Key_Tab, Qt::NoModifier, "\t");
  RC_ASSERT(model.Text() == plain.Text());
  RC_ASSERT(model.SelStart() == plain.SelStart());
  RC_ASSERT(model.SelLength() == plain.SelLength());
  RC_ASSERT(model.Store().Runs(0, model.Length()) == plain.Store().Runs(0, plain.Length()));
  RC_ASSERT(model.CanUndo() == plain.CanUndo());
  model.Undo();
  plain.Undo();
  RC_ASSERT(model.Text() == text);
  RC_ASSERT(plain.Text() == text);
}

TEST_F(IndentLines, AHalfSelectedBreakIsNoLineMore) {
  plain.SetText("a\r\nb");
  plain.SetSelStart(0);
  plain.SetSelLength(2);
  EXPECT_FALSE(drive::SelectsOverLines(plain));
  plain.SetSelLength(3);
  EXPECT_TRUE(drive::SelectsOverLines(plain));
}

}  // namespace
}  // namespace tessel
