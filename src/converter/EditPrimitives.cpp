#include "converter/EditPrimitives.h"

#include <string>

namespace tessel {
namespace {

void ExtendToLineEnd(RichTextBox& editor) { editor.Span("\n", true, true); }

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  const TextPattern pattern(from, kFindDefault);
  Position copied = 0;
  for (Position at = pattern.FindIn(text, 0, std::ssize(text)); at != kNotFound;
       at = pattern.FindIn(text, copied, std::ssize(text))) {
    result += text.substr(copied, at - copied);
    result += to;
    copied = at + std::ssize(from);
  }
  return result += text.substr(copied);
}

}  // namespace

Position FindLine(RichTextBox& editor, std::string_view searchText, bool wholeLine,
                  Position startPos) {
  const Position found = editor.Find(searchText, startPos, std::nullopt, kFindWholeWord);
  if (wholeLine) ExtendToLineEnd(editor);
  return found;
}

EditOutcome ReplaceLine(RichTextBox& editor, std::string_view searchText, std::string_view newText,
                        bool wholeLine) {
  if (editor.Find(searchText, 0, std::nullopt, kFindWholeWord) == kNotFound) return {};
  if (wholeLine) ExtendToLineEnd(editor);
  return {true, WriteRed(editor, newText)};
}

EditOutcome InsertAfterLine(RichTextBox& editor, std::string_view searchText,
                            std::string_view newText, bool wholeLine, Position startPos) {
  if (editor.Find(searchText, startPos, std::nullopt, kFindWholeWord) == kNotFound) return {};
  if (!wholeLine) {
    editor.SetSelStart(editor.SelEnd() + 1);
    return {true, WriteRed(editor, newText)};
  }
  // In front of the line's break, whichever that is: one place further on is inside a CR LF, which
  // the caret cannot enter, but on the next line after a lone LF.
  ExtendToLineEnd(editor);
  editor.SetSelStart(editor.SelEnd());
  return {true, WriteRed(editor, std::string(kLineBreak).append(newText))};
}

bool WriteRed(RichTextBox& editor, std::string_view newText) {
  const bool changed = editor.SelBytes() != newText;
  editor.SetSelColor(kConvertedRed);
  editor.SetSelText(newText);
  return changed;
}

bool SubstituteInSelection(RichTextBox& editor, std::string_view from, std::string_view to) {
  return WriteRed(editor, ReplaceAll(editor.SelBytes(), from, to));
}

}  // namespace tessel
