#include "colouring/Colouring.h"

#include <iterator>

#include "colouring/ColorWords.h"
#include "surface/ColourMode.h"
#include "surface/Parked.h"

namespace tessel {
namespace {

constexpr const char* kWorkingText = "Colorizing, please wait...";
constexpr const char* kReadyText = "Zanth Manager Version 4.0";
constexpr std::string_view kLineBreaks = "\r\n";

// Each of the functions below treats the occurrence that stands selected and returns where the
// search for the next one starts: kNotFound when there is nothing left to look for.

Position ColourBlockComment(RichTextBox& editor, Position at) {
  static const TextPattern end("*/", kFindWholeWord);
  const Position close = editor.Find(end, at);
  editor.SetSelStart(at);
  if (close == kNotFound) {
    editor.SetSelLength(editor.Length() - at);
    editor.SetSelColor(kCommentGreen);
    return kNotFound;
  }
  editor.SetSelLength(close - at + 2);
  editor.SetSelColor(kCommentGreen);
  return close + 1;
}

Position ColourLineComment(RichTextBox& editor, Position at) {
  editor.Span(kLineBreaks, true, true);
  editor.SetSelColor(kCommentGreen);
  return at + editor.SelLength() + 1;
}

// A lone "/" takes the character after it along.
Position ColourComment(RichTextBox& editor, Position at) {
  editor.SetSelLength(editor.SelLength() + 1);
  switch (editor.SelBytes().back()) {
    case '*':
      return ColourBlockComment(editor, at);
    case '/':
      return ColourLineComment(editor, at);
    default:
      editor.SetSelColor(kCommentGreen);
      return at + 1;
  }
}

Position ColourIfBlack(RichTextBox& editor, Position at, Colour colour) {
  if (editor.SelColor() == kBlack) editor.SetSelColor(colour);
  return at + 1;
}

// Holds only where the text ends one blank after the word.
Position ColourMusic(RichTextBox& editor, Position at, Colour colour) {
  const auto wordLength = static_cast<std::size_t>(editor.SelLength());
  editor.SetSelLength(editor.SelLength() + 2);
  if (editor.SelBytes().substr(wordLength) == " ") ColourIfBlack(editor, at, colour);
  return at + 1;
}

Position ColourOccurrence(RichTextBox& editor, Position at, const ColorWord& entry) {
  switch (entry.rule) {
    case ColourRule::kComment:
      return ColourComment(editor, at);
    case ColourRule::kMusic:
      return ColourMusic(editor, at, entry.colour);
    case ColourRule::kIfBlack:
      break;
  }
  return ColourIfBlack(editor, at, entry.colour);
}

/// Returns false when the word does not occur at all.
template <class AfterEach>
bool ColourOccurrences(RichTextBox& editor, const ColorWord& entry, AfterEach afterEach) {
  const TextPattern word(entry.word, kFindWholeWord);
  const auto next = [&](Position from) {
    return from == kNotFound ? kNotFound : editor.Find(word, from);
  };
  Position at = next(0);
  if (at == kNotFound) return false;
  while (at != kNotFound) {
    const Position nextStart = ColourOccurrence(editor, at, entry);
    afterEach();
    at = next(nextStart);
  }
  return true;
}

void ColourAllWords(RichTextBox& editor) {
  for (int i = 0; i < std::ssize(kColorWords); ++i) {
    const ColorWord& entry = kColorWords[i];
    const bool occurs = ColourOccurrences(editor, entry, [] {});
    if (occurs && entry.steering == Steering::kEndsPass) return;
    if (!occurs && entry.steering == Steering::kNeededForDefinitions) i = kFirstScriptWord - 1;
  }
}

}  // namespace

void ColorizeDocument(RichTextBox& editor, const std::function<void(const std::string&)>& status) {
  if (ColourModeOf(editor) == ColourMode::kColoured) return;
  SetColourMode(editor, ColourMode::kColoured);
  status(kWorkingText);
  {
    const Parked parked(editor, Parked::Left::kInFront, Parked::Selection::kHidden);
    ColourAllWords(editor);
  }
  status(kReadyText);
}

void ColorizeWord(RichTextBox& editor, std::string_view word, MessageLoop& loop) {
  const ColourRule rule = word == "/" ? ColourRule::kComment : ColourRule::kIfBlack;
  editor.SetHideSelection(true);
  editor.SetSelStart(0);
  ColourOccurrences(editor, {word, kLevelNameBlue, rule}, [&] { loop.DoEvents(); });
  editor.SetHideSelection(false);
}

}  // namespace tessel
