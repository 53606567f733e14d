// Finding, reading and rewriting the value of a define in an editor's text.
//
// Nothing here knows what a define line is: the search key decides which line is hit, and the value
// is the last blank-delimited token before the first "/" or the end of the line. Callers set
// HideSelection, search with FindDefine, and then read or write, in that order: the selection that
// the search leaves is where the value search starts.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "models/Lists.h"
#include "models/RichTextBox.h"

namespace tessel {

/// Searches the whole text without regard to case; selects the first match. Returns kNotFound, with
/// the selection left where it was, on a miss.
Position FindDefine(RichTextBox& editor, std::string_view name, bool wholeWord);

/// Asked before a text takes the place of the selection; false: nothing is written.
using MayReplace = std::function<bool(std::string_view newText)>;

/// What SelectDefineValue writes, by the program's own numbers.
enum class YesNoWrite { kYes = 0, kNo = 1, kSelectOnly = 3 };

/// Selects the value that belongs to the selection (a found name) and shows the selection. With
/// kYes or kNo the value is replaced by "YES" or "NO", which is selected afterwards; with any other
/// mode than these and kSelectOnly nothing is written.
void SelectDefineValue(RichTextBox& editor, YesNoWrite mode, const MayReplace& mayReplace = {});

/// Reads a setting whose value is YES or NO: true for exactly "YES" on its line.
bool ReadYesNo(RichTextBox& editor, std::string_view name);

/// Selects the value that belongs to a found name and copies it into the value box;
/// `bSettingValueBox` is set meanwhile. Does nothing when `position` is kNotFound.
void ShowDefineValue(RichTextBox& editor, Position position, ComboBox& valueBox,
                     bool& bSettingValueBox);

/// Replaces the selected value and selects the new one. Does nothing while a value box is being set
/// from the text, or when nothing is selected.
void WriteSelectedValue(RichTextBox& editor, std::string_view newText, bool bSettingValueBox,
                        const MayReplace& mayReplace = {});

/// Replaces the selection whatever it holds, and selects the token before the caret.
void ReplaceValue(RichTextBox& editor, std::string_view newText);

}  // namespace tessel
