// Texts with the selection shown in them: "define A [100] // x".
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "models/RichTextBox.h"
#include "text/TextTypes.h"

namespace tessel::test {

/// A text and its selection, read from a text in which "[" and "]" stand around the selection. A
/// caret with nothing selected is "[]".
struct SelectionText {
  std::string text;
  Position start = 0;
  Position length = 0;
};

inline SelectionText ReadSelection(std::string_view marked) {
  const std::size_t open = marked.find('[');
  const std::size_t close = marked.find(']', open);
  if (close == marked.npos) throw std::invalid_argument("no [selection] in the text");
  SelectionText result;
  result.text += marked.substr(0, open);
  result.text += marked.substr(open + 1, close - open - 1);
  result.text += marked.substr(close + 1);
  result.start = static_cast<Position>(open);
  result.length = static_cast<Position>(close - open - 1);
  return result;
}

/// Puts the text into the editor and selects in it, as code does.
inline void SetMarked(RichTextBox& editor, std::string_view marked) {
  const SelectionText wanted = ReadSelection(marked);
  editor.SetText(wanted.text);
  editor.SetSelStart(wanted.start);
  editor.SetSelLength(wanted.length);
}

/// The editor's text with "[" and "]" around the selection.
inline std::string Marked(const RichTextBox& editor) {
  std::string text = editor.Text();
  text.insert(static_cast<std::size_t>(editor.SelEnd()), 1, ']');
  text.insert(static_cast<std::size_t>(editor.SelStart()), 1, '[');
  return text;
}

}  // namespace tessel::test
