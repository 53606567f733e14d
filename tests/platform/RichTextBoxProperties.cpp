// The editor against a naive model of it: random texts, random operations.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "platform/RichTextBox.h"
#include "platform/Text.h"

namespace tessel::test {
namespace {

/// The rules once more, character by character and without any thought of speed.
class NaiveEditor {
 public:
  struct Character {
    char byte;
    Colour colour;
  };
  struct Edit {
    std::size_t at;
    std::string removed;
    std::string inserted;
  };

  std::vector<Character> text;
  std::size_t start = 0;
  std::size_t length = 0;
  std::optional<Colour> held;
  std::vector<std::vector<Edit>> undo;
  bool typing = false;
  int changes = 0;

  std::string Text() const {
    std::string result;
    for (const Character& c : text) result += c.byte;
    return result;
  }

  void SetText(const std::string& bytes) {
    text.clear();
    for (const char byte : bytes) text.push_back({byte, kBlack});
    undo.clear();
    Move(0, 0);
    ++changes;
  }

  void Move(std::size_t newStart, std::size_t newLength) {
    start = newStart;
    length = newLength;
    held.reset();
    typing = false;
  }

  bool InsideBreak(std::size_t at) const {
    return at > 0 && at < text.size() && text[at - 1].byte == '\r' && text[at].byte == '\n';
  }

  void SetSelStart(std::size_t at) {
    at = std::min(at, text.size());
    Move(InsideBreak(at) ? at - 1 : at, 0);
  }

  void SetSelLength(std::size_t wanted) { Move(start, std::min(wanted, text.size() - start)); }

  Colour NextColour() const {
    if (held) return *held;
    if (length > 0) return text[start].colour;
    return start > 0 ? text[start - 1].colour : kBlack;
  }

  std::optional<Colour> SelColor() const {
    if (length == 0) return NextColour();
    for (std::size_t i = start; i < start + length; ++i) {
      if (text[i].colour != text[start].colour) return std::nullopt;
    }
    return text[start].colour;
  }

  void SetSelColor(Colour colour) {
    typing = false;
    if (length == 0) {
      held = colour;
      return;
    }
    for (std::size_t i = start; i < start + length; ++i) text[i].colour = colour;
    ++changes;
  }

  void Put(std::size_t at, std::size_t count, const std::string& inserted, Colour colour) {
    while (count-- > 0) text.erase(text.begin() + static_cast<Position>(at));
    for (std::size_t i = 0; i < inserted.size(); ++i) {
      text.insert(text.begin() + static_cast<Position>(at + i), Character{inserted[i], colour});
    }
  }

  void SetSelText(const std::string& inserted) {
    ++changes;
    if (inserted.empty() && length == 0) {
      typing = false;
      return;
    }
    undo.push_back({{start, Text().substr(start, length), inserted}});
    Put(start, length, inserted, NextColour());
    Move(start + inserted.size(), 0);
  }

  void TypeKey(char key) {
    const Edit edit{start, Text().substr(start, length), std::string(1, key)};
    if (typing) {
      undo.back().push_back(edit);
    } else {
      undo.push_back({edit});
    }
    Put(start, length, edit.inserted, NextColour());
    Move(start + 1, 0);
    typing = true;
    ++changes;
  }

  void Undo() {
    if (undo.empty()) return;
    auto step = undo.back();
    undo.pop_back();
    std::size_t caret = 0;
    // What was typed in a row makes one text.
    std::string typed;
    for (const Edit& edit : step) typed += edit.inserted;
    const std::size_t at = step.front().at;
    const Colour colour = !typed.empty() ? text[at].colour : at > 0 ? text[at - 1].colour : kBlack;
    Put(at, typed.size(), step.front().removed, colour);
    caret = at + step.front().removed.size();
    Move(caret, 0);
    ++changes;
  }

  bool Matches(std::size_t at, const std::string& wanted, int options) const {
    const auto fold = [&](char c) {
      const auto byte = static_cast<unsigned char>(c);
      return (options & kFindMatchCase) != 0 ? byte : ToLowerByte(byte);
    };
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      if (fold(text[at + i].byte) != fold(wanted[i])) return false;
    }
    return (options & kFindWholeWord) == 0 || (!JoinedAt(at) && !JoinedAt(at + wanted.size()));
  }

  /// True when a word goes on across the place.
  bool JoinedAt(std::size_t at) const {
    const auto word = [&](std::size_t i) {
      const auto byte = static_cast<unsigned char>(text[i].byte);
      return std::isalnum(byte) != 0 || byte == '_' || byte >= 0x80;
    };
    return at > 0 && at < text.size() && word(at - 1) && word(at);
  }

  Position Find(const std::string& wanted, std::size_t from, std::size_t end, int options) {
    typing = false;
    if (wanted.empty()) return kNotFound;
    for (std::size_t at = from; at + wanted.size() <= std::min(end, text.size()); ++at) {
      if (Matches(at, wanted, options)) {
        Move(at, wanted.size());
        return static_cast<Position>(at);
      }
    }
    return kNotFound;
  }

  void Span(const std::string& set, bool forward, bool negate) {
    const auto goesOn = [&](std::size_t i) {
      return (set.find(text[i].byte) != set.npos) != negate;
    };
    std::size_t first = start;
    std::size_t last = start + length;
    if (forward) {
      while (last < text.size() && goesOn(last)) ++last;
      if (InsideBreak(last)) --last;
      first = std::min(first, last);
    } else {
      while (first > 0 && goesOn(first - 1)) --first;
      if (InsideBreak(first)) --first;
    }
    Move(first, last - first);
  }
};

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
