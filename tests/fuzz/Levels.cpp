// The levels page: its scan, the boxes of a level, and their writing back. An input is the new
// title on a line and the text.
#include "settings/Levels.h"

#include <string>

#include "control/Wiring.h"
#include "fuzz/Fuzzing.h"
#include "support/FakeServices.h"
#include "surface/CurrentEditor.h"

namespace tessel::fuzz {
namespace {

/// Level words in a text that is in no case mixed up: at least as many as the entries.
std::size_t LevelWords(const std::string& text) {
  const std::string lower = ToLowerText(text);
  std::size_t count = 0;
  for (std::size_t at = lower.find("definelevelname"); at != lower.npos;
       at = lower.find("definelevelname", at + 1)) {
    ++count;
  }
  return count;
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  static HostedControls controls;
  static test::FakeServices services;
  static const std::string conPath = "/games";
  static DocumentList documents(controls);
  Levels levels(documents, LevelsControls(controls), LevelsServices(services.Get()), conPath);
  Input input(data, size);
  const std::string title = input.Line();
  const std::string text = input.Rest();
  RichTextBox& editor = CurrentEditor(controls);
  editor.SetText(text);

  levels.FillLevelList();
  Require(editor.Bytes() == text, "the scan changes no text");
  Require(editor.Left() == 0 && editor.Visible(), "the editor is in sight");
  const auto entries = controls.cboEpisode.List();
  Require(entries.size() <= LevelWords(text), "an entry has a level line");
  std::size_t shown = 0;
  for (const std::string& entry : entries) {
    if (++shown > 20) break;
    controls.txtMap.SetText("");
    controls.txtTitle.SetText("");
    levels.ShowLevel(entry);
    Require(editor.Bytes() == text, "showing a level changes no text");
    Require(editor.Bytes().find(controls.txtMap.Text()) != std::string_view::npos,
            "the map stands in the text");
    Require(editor.Bytes().find(controls.txtTitle.Text()) != std::string_view::npos,
            "the title stands in the text");
  }
  levels.txtTitle_GotFocus();
  const Position start = editor.SelStart();
  std::string expected = text;
  if (editor.SelLength() > 0) {
    expected.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(editor.SelLength()),
                     title);
  }
  controls.txtTitle.SetText(title);
  levels.cmdInsert_Click(1);
  Require(editor.Bytes() == expected, "only the title's bytes change");
  return 0;
}
