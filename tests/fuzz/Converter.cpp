// The version converter. An input is a text; its length picks the selection.
#include "converter/Converter.h"

#include <algorithm>
#include <optional>
#include <string>

#include "base/RuntimeError.h"
#include "fuzz/Fuzzing.h"
#include "support/FakeServices.h"
#include "surface/CurrentEditor.h"

namespace tessel::fuzz {
namespace {

enum class Result { kConverted, kRefused, kFailed };

Result Convert(HostedControls& controls, test::FakeServices& services) {
  services.messages.shown.clear();
  try {
    ConvertUserCon(CurrentEditor(controls), services.pointer, services.messages,
                   [&] { Document(controls, Slot{0}).MarkModified(); });
  } catch (const RuntimeError&) {
    return Result::kFailed;
  }
  return services.messages.shown.empty() ? Result::kConverted : Result::kRefused;
}

struct State {
  std::string text;
  std::vector<ColourRun> colours;
  Position start, length;
  bool canUndo;
  std::string marker;

  explicit State(HostedControls& controls)
      : text(CurrentEditor(controls).Text()),
        colours(CurrentEditor(controls).Store().Runs(0, CurrentEditor(controls).Length())),
        start(CurrentEditor(controls).SelStart()),
        length(CurrentEditor(controls).SelLength()),
        canUndo(CurrentEditor(controls).CanUndo()),
        marker(controls.tbsRtb.At(1).image) {}

  bool SameDocument(const State& other) const {
    return text == other.text && canUndo == other.canUndo && marker == other.marker &&
           std::ranges::equal(colours, other.colours, [](const ColourRun& a, const ColourRun& b) {
             return a.start == b.start && a.length == b.length && a.colour == b.colour;
           });
  }
};

/// A text with a colour, an edit to undo, a selection and an unmodified marker.
void SetUp(HostedControls& controls, const std::string& text) {
  RichTextBox& editor = CurrentEditor(controls);
  editor.SetText(text);
  editor.SetSelStart(editor.Length() / 3);
  editor.SetSelLength(3);
  editor.SetSelColor(0x008000);
  editor.SetSelText("/");
  editor.SetSelStart(editor.Length() / 2);
  editor.SetSelLength(editor.Length() / 8);
  controls.tbsRtb.SetTabImage(1, kBlackDot);
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  static HostedControls controls;
  test::FakeServices services;
  RichTextBox& editor = CurrentEditor(controls);
  SetUp(controls, std::string(AsText(data, size)));

  const State before(controls);
  const Result result = Convert(controls, services);
  const State after(controls);
  Require(editor.Left() == 0 && editor.Visible(), "the editor is in sight");
  Require(services.pointer.Shape() == PointerShape::kDefault, "the pointer is the default one");
  switch (result) {
    case Result::kConverted:
      Require(!editor.CanUndo() && editor.SelStart() == 0, "a converted file starts anew");
      Require(after.marker == kRedDot, "a converted file is modified");
      Require(Convert(controls, services) == Result::kRefused, "nothing is converted twice");
      Require(editor.Bytes() == after.text, "a refusal changes nothing");
      break;
    case Result::kRefused:
      Require(before.SameDocument(after), "a refusal changes nothing");
      Require(after.start == before.start, "a refusal keeps the caret");
      break;
    case Result::kFailed:
      Require(before.SameDocument(after), "a failure leaves everything as it was");
      Require(after.start == before.start && after.length == before.length,
              "a failure keeps the selection");
      break;
  }
  return 0;
}
