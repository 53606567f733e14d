// Looking a define up and writing its value. An input is the name on a line, the new value on a
// line, and the text.
#include "settings/Defines.h"

#include <string>

#include "fuzz/Fuzzing.h"
#include "models/Lists.h"

namespace tessel::fuzz {
namespace {

/// What stands selected is the value: a token without blanks in front of a comment, blanks or the
/// end of its line.
void RequireValueSelected(const RichTextBox& editor) {
  Require(editor.SelBytes().find(' ') == std::string_view::npos, "a value holds no blank");
}

/// The text is the old one with other bytes in the place that was selected.
void RequireOnlyValueChanged(const RichTextBox& editor, const std::string& before, Position start,
                             Position length, const std::string& written) {
  std::string expected = before;
  expected.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), written);
  Require(editor.Bytes() == expected, "only the value's bytes change");
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  Input input(data, size);
  const std::string name = input.Line();
  const std::string value = input.Line();
  const std::string text = input.Rest();
  ControlSet controls;
  RichTextBox editor(controls, "rtbCon");
  ComboBox box(controls, "cmbweap");
  bool setting = false;
  editor.SetText(text);

  const Position found = FindDefine(editor, name, true);
  ShowDefineValue(editor, found, box, setting);
  Require(editor.Bytes() == text, "reading a value changes no text");
  Require(!setting, "the value box is set");
  if (found != kNotFound) {
    RequireValueSelected(editor);
    Require(box.Text() == editor.SelText(), "the box shows what is selected");
    const Position start = editor.SelStart();
    const Position length = editor.SelLength();
    WriteSelectedValue(editor, value, false);
    RequireOnlyValueChanged(editor, text, start, length, length > 0 ? value : "");
    if (editor.CanUndo()) editor.Undo();
    Require(editor.Bytes() == text, "one undo takes the writing back");
  }

  editor.SetText(text);
  const bool yes = ReadYesNo(editor, name);
  Require(editor.Bytes() == text, "reading YES or NO changes no text");
  Require(!yes || editor.SelBytes() == "YES", "a YES is selected");
  const Position start = editor.SelStart();
  const Position length = editor.SelLength();
  SelectDefineValue(editor, YesNoWrite::kSelectOnly);
  Require(editor.Bytes() == text, "selecting a value changes no text");
  editor.SetSelStart(start);
  editor.SetSelLength(length);
  ReplaceValue(editor, "NO");
  RequireOnlyValueChanged(editor, text, start, length, "NO");
  return 0;
}
