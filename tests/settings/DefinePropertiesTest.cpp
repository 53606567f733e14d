// Whatever a document of define lines looks like, reading changes nothing and writing changes
// exactly the value.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "settings/Defines.h"

namespace tessel {
namespace {

/// A line in its parts: everything in front of the value, the value, and the rest.
struct Line {
  std::string name;
  std::string before, value, behind;
};

rc::Gen<std::string> Text(const std::string& alphabet, int longest) {
  return rc::gen::mapcat(rc::gen::inRange(1, longest + 1), [alphabet](int length) {
    return rc::gen::container<std::string>(static_cast<std::size_t>(length),
                                           rc::gen::elementOf(alphabet));
  });
}

std::string Blanks(int most) {
  return std::string(static_cast<std::size_t>(*rc::gen::inRange(1, most + 1)), ' ');
}

/// Names are told apart by their number and cannot occur in values or comments.
Line RandomLine(int number, const std::string& lineEnd) {
  Line line;
  line.name = "NAME" + std::to_string(number) + "_" + *Text("ABCXYZ_", 6);
  line.before = *rc::gen::element<std::string>("define ", "DEFINE   ", "", "\t") + line.name;
  line.before += Blanks(4);
  line.value = *Text("0123456789-.abcxyz", 8);
  line.behind = *rc::gen::element<std::string>("", " ", "   ");
  if (*rc::gen::arbitrary<bool>()) line.behind += "//" + *Text("abc 0123456789/*\t", 12);
  line.behind += lineEnd;
  return line;
}

std::string TextOf(const std::vector<Line>& lines) {
  std::string text;
  for (const Line& line : lines) text += line.before + line.value + line.behind;
  return text;
}

RC_GTEST_PROP(DefineProperties, ReadingThenWritingChangesExactlyTheValue, ()) {
  const std::string lineEnd = *rc::gen::element<std::string>("\r\n", "\n");
  std::vector<Line> lines;
  const int count = *rc::gen::inRange(1, 12);
  for (int i = 0; i < count; ++i) lines.push_back(RandomLine(i, lineEnd));

  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  ComboBox box(set, "cmbweap");
  bool setting = false;
  editor.SetText(TextOf(lines));
  for (int round = 0; round < 5; ++round) {
    Line& line = lines[static_cast<std::size_t>(*rc::gen::inRange(0, count))];
    const bool wholeWord = *rc::gen::arbitrary<bool>();
    const Position position = FindDefine(editor, line.name, wholeWord);
    ShowDefineValue(editor, position, box, setting);
    RC_ASSERT(box.Text() == line.value);
    RC_ASSERT(editor.Text() == TextOf(lines));

    line.value = *Text("0123456789", 6);
    WriteSelectedValue(editor, line.value, setting);
    RC_ASSERT(editor.Text() == TextOf(lines));
    RC_ASSERT(editor.SelText() == line.value);
  }
}

RC_GTEST_PROP(DefineProperties, WritingYesOrNoChangesExactlyTheValue, (bool yes)) {
  std::vector<Line> lines;
  for (int i = 0; i < 4; ++i) lines.push_back(RandomLine(i, "\r\n"));
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  editor.SetText(TextOf(lines));

  Line& line = lines[static_cast<std::size_t>(*rc::gen::inRange(0, 4))];
  FindDefine(editor, line.name, true);
  SelectDefineValue(editor, yes ? YesNoWrite::kYes : YesNoWrite::kNo);
  line.value = yes ? "YES" : "NO";
  RC_ASSERT(editor.Text() == TextOf(lines));
  RC_ASSERT(ReadYesNo(editor, line.name) == yes);
}

}  // namespace
}  // namespace tessel
