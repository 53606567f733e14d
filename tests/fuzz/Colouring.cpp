// Colouring a document and taking the colours away again. An input is a text.
#include "colouring/Colouring.h"

#include <string>

#include "colouring/ColourCommand.h"
#include "colouring/LiveColours.h"
#include "fuzz/Fuzzing.h"
#include "services/HeadlessServices.h"
#include "surface/CurrentEditor.h"

namespace tessel::fuzz {
namespace {

void RequireCoveringRuns(const RichTextBox& editor) {
  Position end = 0;
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    Require(run.start == end && run.length > 0, "the runs of colour follow each other");
    end += run.length;
  }
  Require(end == editor.Length(), "every character has a colour");
}

void RequireLiveColoursOfThePass(const RichTextBox& editor) {
  const std::string text = editor.Text();
  const std::string half = text.substr(0, text.size() / 2);
  LiveColours live(half, 8);
  live.Update(text, std::ssize(half), 0, std::ssize(text) - std::ssize(half));
  const std::string colours = live.ColoursOf(text, 0, std::ssize(text));
  for (Position at = 0; at < std::ssize(text); ++at) {
    const auto index = static_cast<unsigned char>(colours[static_cast<std::size_t>(at)]);
    Require(LiveColours::Palette()[index] == editor.Store().ColourAt(at),
            "live colours are those of the pass");
  }
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  static HostedControls controls;
  PlainScreenPointer pointer;
  IdleMessageLoop loop;
  const std::string text(AsText(data, size));
  RichTextBox& editor = CurrentEditor(controls);
  editor.SetText(text);
  editor.SetTag("");

  ApplyColourMode(true, editor, pointer, [](const std::string&) {});
  Require(editor.Bytes() == text, "colouring changes no text");
  Require(!editor.CanUndo(), "colouring is no edit");
  Require(editor.SelStart() == 0 && editor.SelLength() == 0, "the caret is at the start");
  Require(editor.Left() == 0 && editor.Visible(), "the editor is in sight");
  RequireCoveringRuns(editor);
  RequireLiveColoursOfThePass(editor);

  ColorizeWord(editor, text.substr(0, text.find(' ')), loop);
  Require(editor.Bytes() == text, "colouring a word changes no text");
  RequireCoveringRuns(editor);

  ApplyColourMode(false, editor, pointer, [](const std::string&) {});
  Require(editor.Bytes() == text, "plain mode changes no text");
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    Require(run.colour == kBlack, "plain mode is black");
  }
  return 0;
}
