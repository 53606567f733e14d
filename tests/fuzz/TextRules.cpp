// The editor against a naive model of it. An input is the length of the first text, that text, and
// then the operations.
#include <string>

#include "fuzz/Fuzzing.h"
#include "models/RichTextBox.h"
#include "support/NaiveEditor.h"

namespace tessel::fuzz {
namespace {

using test::NaiveEditor;

constexpr std::size_t kLongestText = 400;  // the model is slow
constexpr int kMostOperations = 300;

void Search(Input& input, RichTextBox& editor, NaiveEditor& model, std::size_t place) {
  const std::size_t end = input.Number(model.text.size() + 2);
  const int options = 2 * static_cast<int>(input.Number(3));
  const std::string wanted =
      input.Number(1) == 0
          ? input.Text(input.Number(4))
          : ToUpperText(model.Text().substr(input.Number(model.text.size()), input.Number(5)));
  Require(editor.Find(wanted, static_cast<Position>(place), static_cast<Position>(end), options) ==
              model.Find(wanted, place, end, options),
          "a search finds what the model finds");
}

void Span(Input& input, RichTextBox& editor, NaiveEditor& model) {
  const std::string set = input.Text(input.Number(6));
  const std::size_t how = input.Number(3);
  editor.Span(set, (how & 1U) != 0, (how & 2U) != 0);
  model.Span(set, (how & 1U) != 0, (how & 2U) != 0);
}

void Type(Input& input, RichTextBox& editor, NaiveEditor& model) {
  const auto key = static_cast<char>(input.Byte());
  const RichTextBox::Gesture gesture(editor, true);
  editor.EditByHand(editor.SelStart(), editor.SelLength(), std::string(1, key));
  model.TypeKey(key);
}

void Operate(Input& input, RichTextBox& editor, NaiveEditor& model) {
  const std::size_t operation = input.Number(7);
  const std::size_t place = input.Number(model.text.size() + 2);
  switch (operation) {
    case 0:
      return Search(input, editor, model, place);
    case 1:
      return Span(input, editor, model);
    case 2:
      editor.SetSelStart(static_cast<Position>(place));
      return model.SetSelStart(place);
    case 3:
      editor.SetSelLength(static_cast<Position>(place));
      return model.SetSelLength(place);
    case 4: {
      const std::string text = input.Text(input.Number(5));
      editor.SetSelText(text);
      return model.SetSelText(text);
    }
    case 5: {
      const Colour colour = input.Byte();
      editor.SetSelColor(colour);
      return model.SetSelColor(colour);
    }
    case 6:
      editor.Undo();
      return model.Undo();
    default:
      return Type(input, editor, model);
  }
}

void RequireSame(const RichTextBox& editor, const NaiveEditor& model) {
  Require(editor.Bytes() == model.Text(), "the texts are equal");
  Require(editor.SelStart() == static_cast<Position>(model.start), "the selections start alike");
  Require(editor.SelLength() == static_cast<Position>(model.length), "the selections end alike");
  Require(editor.SelColor() == model.SelColor(), "the selections have the same colour");
  Require(editor.CanUndo() == !model.undo.empty(), "both or neither can be undone");
  for (std::size_t i = 0; i < model.text.size(); ++i) {
    Require(editor.Store().ColourAt(static_cast<Position>(i)) == model.text[i].colour,
            "the colours are equal");
  }
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  Input input(data, size);
  ControlSet controls;
  RichTextBox editor(controls, "rtbCon");
  NaiveEditor model;
  const std::string text = input.Text(input.Number(kLongestText));
  editor.SetText(text);
  model.SetText(text);
  for (int i = 0; i < kMostOperations && !input.Empty(); ++i) {
    Operate(input, editor, model);
    RequireSame(editor, model);
  }
  while (editor.CanUndo()) editor.Undo();
  Require(editor.Bytes() == text, "all undone gives the first text");
  return 0;
}
