// The readings of the open documents follow their texts.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/script/OpenScripts.h"
#include "language/Names.h"
#include "surface/HostedControls.h"

namespace tessel::test {
namespace {

std::vector<std::string> NamesIn(const language::Script& script) {
  std::vector<std::string> names;
  for (const auto& symbol : language::Symbols(script)) {
    names.emplace_back(script.Text(symbol.name));
  }
  return names;
}

/// What a new reading of the same text gives.
std::vector<std::string> NamesOf(const RichTextBox& editor) {
  const std::string copy = editor.Text();
  return NamesIn(language::Script(copy));
}

TEST(OpenScripts, FollowEveryWayInWhichATextChanges) {
  HostedControls controls;
  RichTextBox& editor = controls.rtbCon[0];
  OpenScripts scripts(controls.rtbCon);
  const auto expectSame = [&] { EXPECT_EQ(NamesIn(scripts.Of(Slot{0})), NamesOf(editor)); };
  editor.SetText("define A 1\n");
  expectSame();
  editor.Type("define B 2\n");
  editor.Type("define C 3\n");
  expectSame();
  editor.Undo();
  expectSame();
  editor.Redo();
  expectSame();
  auto snapshot = editor.TakeSnapshot();
  editor.TakeText();
  expectSame();
  editor.Restore(std::move(snapshot));
  expectSame();
  EXPECT_EQ(NamesIn(scripts.Of(Slot{0})), (std::vector<std::string>{"B", "C", "A"}));
}

TEST(OpenScripts, KnowEditorsThatComeAndGo) {
  HostedControls controls;
  OpenScripts scripts(controls.rtbCon);
  controls.rtbCon.Load().SetText("define A 1");
  EXPECT_EQ(NamesIn(scripts.Of(Slot{1})), std::vector<std::string>{"A"});
  controls.rtbCon.UnloadLast();
  controls.rtbCon.Load().SetText("define B 1");
  EXPECT_EQ(NamesIn(scripts.Of(Slot{1})), std::vector<std::string>{"B"});
}

TEST(OpenScripts, CanBeAskedByThoseWhoHearOfAnEditEarlier) {
  HostedControls controls;
  RichTextBox& editor = controls.rtbCon[0];
  editor.SetText("define A 1\n");
  OpenScripts* asked = nullptr;
  const Subscription early = editor.Store().Edited.Connect([&](const TextEdit&) {
    if (asked == nullptr) return;
    EXPECT_EQ(NamesIn(asked->Of(Slot{0})), NamesOf(editor));
  });
  OpenScripts scripts(controls.rtbCon);
  scripts.Of(Slot{0});
  asked = &scripts;
  editor.Type("define B 2\n");
  editor.Type("define C 3\n");
  EXPECT_EQ(NamesIn(scripts.Of(Slot{0})), NamesOf(editor));
}

TEST(OpenScripts, TellWhereATextHasChanged) {
  HostedControls controls;
  RichTextBox& editor = controls.rtbCon[0];
  editor.SetText("abc");
  OpenScripts scripts(controls.rtbCon);
  std::vector<ChangedRange> told;
  const Subscription telling =
      scripts.Changed.Connect([&](Slot, const ChangedRange& change) { told.push_back(change); });
  editor.SelectByHand(1, 1);
  editor.Type("xyz");
  editor.SetText("1234");
  EXPECT_EQ(told, (std::vector<ChangedRange>{{1, 1, 3}, {0, 5, 4}}));
}

RC_GTEST_PROP(OpenScripts, ReadTheSameAsANewReading, ()) {
  HostedControls controls;
  RichTextBox& editor = controls.rtbCon[0];
  OpenScripts scripts(controls.rtbCon);
  const auto edits = *rc::gen::inRange(1, 12);
  for (int i = 0; i < edits; ++i) {
    const auto at = *rc::gen::inRange<Position>(0, editor.Length() + 1);
    editor.SelectByHand(at, *rc::gen::inRange<Position>(0, 9));
    editor.Type(*rc::gen::element<std::string>("define A 1\n", "/*", "*/", "state b ", "ends\n", "",
                                               "\n", "actor c {", "}"));
    if (*rc::gen::arbitrary<bool>()) continue;
    RC_ASSERT(NamesIn(scripts.Of(Slot{0})) == NamesOf(editor));
  }
  RC_ASSERT(NamesIn(scripts.Of(Slot{0})) == NamesOf(editor));
}

}  // namespace
}  // namespace tessel::test
