// The editor against a naive model of it: random texts, random operations.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "models/RichTextBox.h"
#include "support/NaiveEditor.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

// Few different bytes, so that searches hit and line ends meet: all kinds of line ends, NUL,
// blanks, letters of both cases, and pairs of Windows-1252 that differ in case only.
const std::string kBytes("aAbB_1 /*\r\n\0\x8A\x9A\xC4\xE4\xDF\xFF\x9F", 20);
constexpr Colour kColours[] = {kBlack, 0x0000C8, 0x008000, 0xC00000};

rc::Gen<std::string> AnyText(int most) {
  const auto piece = rc::gen::weightedOneOf<std::string>(
      {{6, rc::gen::map(rc::gen::elementOf(kBytes), [](char c) { return std::string(1, c); })},
       {2, rc::gen::just(std::string("\r\n"))},
       {1, rc::gen::map(rc::gen::inRange(0, 256),
                        [](int c) { return std::string(1, static_cast<char>(c)); })}});
  return rc::gen::mapcat(rc::gen::inRange(0, most), [piece](int count) {
    return rc::gen::map(
        rc::gen::container<std::vector<std::string>>(static_cast<std::size_t>(count), piece),
        [](const std::vector<std::string>& pieces) {
          std::string text;
          for (const auto& p : pieces) text += p;
          return text;
        });
  });
}

/// Full-sized values from the first case on: RapidCheck would begin with tiny ones.
constexpr int kFullSize = 100;

template <class T>
T Any(const rc::Gen<T>& generator) {
  return *rc::gen::resize(kFullSize, generator);
}

/// In [0, most].
std::size_t AnyNumber(std::size_t most) { return Any(rc::gen::inRange<std::size_t>(0, most + 1)); }

/// A text to search for: half of them stand in the text, but for their case.
std::string AnyWanted(const std::string& text) {
  if (AnyNumber(1) == 0) return Any(AnyText(4));
  const std::string piece = text.substr(AnyNumber(text.size()), AnyNumber(5));
  return AnyNumber(1) == 0 ? ToUpperText(piece) : ToLowerText(piece);
}

/// One random operation on both.
void Operate(RichTextBox& editor, NaiveEditor& model) {
  const std::size_t place = AnyNumber(model.text.size() + 2);
  switch (AnyNumber(10)) {
    case 0: {
      const std::string wanted = AnyWanted(model.Text());
      const std::size_t end = AnyNumber(model.text.size() + 2);
      const int options = 2 * static_cast<int>(AnyNumber(3));
      RC_ASSERT(editor.Find(wanted, static_cast<Position>(place), static_cast<Position>(end),
                            options) == model.Find(wanted, place, end, options));
      break;
    }
    case 1: {
      const std::string set = Any(AnyText(6));
      const bool forward = AnyNumber(1) == 1;
      const bool negate = AnyNumber(1) == 1;
      editor.Span(set, forward, negate);
      model.Span(set, forward, negate);
      break;
    }
    case 2:
    case 3:
      editor.SetSelStart(static_cast<Position>(place));
      model.SetSelStart(place);
      break;
    case 4:
    case 5:
      editor.SetSelLength(static_cast<Position>(place));
      model.SetSelLength(place);
      break;
    case 6: {
      const std::string text = Any(AnyText(5));
      editor.SetSelText(text);
      model.SetSelText(text);
      break;
    }
    case 7: {
      const Colour colour = kColours[AnyNumber(3)];
      editor.SetSelColor(colour);
      model.SetSelColor(colour);
      break;
    }
    case 8:
      editor.Undo();
      model.Undo();
      break;
    default: {
      const char key = Any(rc::gen::elementOf(kBytes));
      const RichTextBox::Gesture gesture(editor, true);
      editor.EditByHand(editor.SelStart(), editor.SelLength(), std::string(1, key));
      model.TypeKey(key);
    }
  }
}

void ExpectSame(const RichTextBox& editor, const NaiveEditor& model) {
  RC_ASSERT(editor.Text() == model.Text());
  RC_ASSERT(editor.SelStart() == static_cast<Position>(model.start));
  RC_ASSERT(editor.SelLength() == static_cast<Position>(model.length));
  RC_ASSERT(editor.SelColor() == model.SelColor());
  RC_ASSERT(editor.CanUndo() == !model.undo.empty());
  for (std::size_t i = 0; i < model.text.size(); ++i) {
    RC_ASSERT(editor.Store().ColourAt(static_cast<Position>(i)) == model.text[i].colour);
  }
}

RC_GTEST_PROP(RichTextBoxProperties, AgreesWithANaiveModelAfterEveryOperation, ()) {
  ControlSet controls;
  RichTextBox editor(controls, "rtbCon");
  NaiveEditor model;
  int changes = 0;
  const Subscription subscription = editor.Change.Connect([&] { ++changes; });
  const std::string text = Any(AnyText(40));
  editor.SetText(text);
  model.SetText(text);
  for (std::size_t i = AnyNumber(500); i > 0; --i) {
    Operate(editor, model);
    ExpectSame(editor, model);
    RC_ASSERT(changes == model.changes);
  }
}

RC_GTEST_PROP(RichTextBoxProperties, ComesBackToTheFirstTextWhenEverythingIsUndone, ()) {
  ControlSet controls;
  RichTextBox editor(controls, "rtbCon");
  NaiveEditor model;
  const std::string text = Any(AnyText(40));
  editor.SetText(text);
  model.SetText(text);
  for (std::size_t i = AnyNumber(500); i > 0; --i) Operate(editor, model);
  const std::string last = editor.Text();
  int steps = 0;
  for (; editor.CanUndo(); ++steps) editor.Undo();
  RC_ASSERT(editor.Text() == text);
  for (; steps > 0; --steps) editor.Redo();
  RC_ASSERT(editor.Text() == last);
}

/// A view that knows nothing but what it is told.
struct Mirror : TextStoreView {
  explicit Mirror(const TextStore& mirrored) : store(mirrored) {}

  void Replaced(Position at, Position removed, Position inserted) override {
    const auto place = static_cast<std::size_t>(at);
    bytes.replace(place, static_cast<std::size_t>(removed),
                  store.Bytes().substr(place, static_cast<std::size_t>(inserted)));
  }
  void Painted(Position, Position) override {}

  const TextStore& store;
  std::string bytes;
};

RC_GTEST_PROP(RichTextBoxProperties, TellsAViewEveryChangeOfTheText, ()) {
  ControlSet controls;
  RichTextBox editor(controls, "rtbCon");
  Mirror mirror(editor.Store());
  editor.Store().SetView(&mirror);
  NaiveEditor model;
  const std::string text = Any(AnyText(40));
  editor.SetText(text);
  model.SetText(text);
  const auto snapshot = editor.TakeSnapshot();
  for (std::size_t i = AnyNumber(500); i > 0; --i) {
    Operate(editor, model);
    RC_ASSERT(mirror.bytes == editor.Text());
  }
  editor.Restore(snapshot);
  RC_ASSERT(mirror.bytes == text);
}

}  // namespace
}  // namespace tessel::test
