#include "colouring/Colouring.h"

#include <iterator>

#include "colouring/ColorWords.h"
#include "colouring/ColourRules.h"
#include "surface/ColourMode.h"
#include "surface/Parked.h"

namespace tessel {
namespace {

constexpr const char* kWorkingText = "Colorizing, please wait...";
constexpr const char* kReadyText = "Zanth Manager Version 4.0";

/// Treats the occurrence that stands selected and returns where the search for the next one starts.
Position ColourOccurrence(RichTextBox& editor, Position at, const ColorWord& entry) {
  const Stretch stretch = StretchOf(entry, editor.Bytes(), at);
  if (stretch.length == 0) return stretch.next;
  if (stretch.length != editor.SelLength()) editor.SetSelLength(stretch.length);
  if (ColoursAnything(entry) || editor.SelColor() == kBlack) editor.SetSelColor(entry.colour);
  return stretch.next;
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
  for (int i = 0; i < std::ssize(kColorWords);) {
    i = EntryAfter(i, ColourOccurrences(editor, kColorWords[i], [] {}));
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
  const ColorWord entry = word == "/" ? ColorWord{word, kCommentGreen, ColourRule::kComment}
                                      : ColorWord{word, kLevelNameBlue};
  editor.SetHideSelection(true);
  editor.SetSelStart(0);
  ColourOccurrences(editor, entry, [&] { loop.DoEvents(); });
  editor.SetHideSelection(false);
}

}  // namespace tessel
