// The few edits of which a conversion consists. All search for whole words, case ignored.
#pragma once

#include <string_view>

#include "models/RichTextBox.h"

namespace tessel {

/// The colour of everything that the converter writes.
inline constexpr Colour kConvertedRed = 0x0000FF;
inline constexpr std::string_view kLineBreak = "\r\n";

/// What came of an edit: whether its text was there, and whether the document's text is another
/// now.
struct EditOutcome {
  bool found = false;
  bool changed = false;
};

/// Searches from `startPos` and returns the position, or kNotFound. A hit is selected; with
/// `wholeLine` the selection is then extended to the end of its line, after a miss as well.
Position FindLine(RichTextBox& editor, std::string_view searchText, bool wholeLine,
                  Position startPos);

/// Puts `newText`, in red, in the place of the first hit in the document; with `wholeLine` in the
/// place of the hit and the rest of its line. The line's break stays.
EditOutcome ReplaceLine(RichTextBox& editor, std::string_view searchText, std::string_view newText,
                        bool wholeLine);

/// With `wholeLine`, puts a line break and `newText`, in red, behind the line of the first hit from
/// `startPos` on. Without, puts `newText` behind the character after the hit.
EditOutcome InsertAfterLine(RichTextBox& editor, std::string_view searchText,
                            std::string_view newText, bool wholeLine, Position startPos);

/// Puts `newText`, in red, in the place of the selection. Returns whether that is another text.
bool WriteRed(RichTextBox& editor, std::string_view newText);

/// In the selection, puts `to` in the place of every `from`, case ignored; all of it turns red.
/// Returns whether that is another text.
bool SubstituteInSelection(RichTextBox& editor, std::string_view from, std::string_view to);

}  // namespace tessel
