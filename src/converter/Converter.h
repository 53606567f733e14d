// The version converter.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "converter/VersionEdits.h"
#include "models/RichTextBox.h"
#include "services/Services.h"

namespace tessel {

/// What a document holds when its conversion has failed.
enum class AfterFailure {
  kTextFromBefore,  // a copy is kept meanwhile: text, colours, undo
  kAnything,        // for a document that is thrown away then
};

/// What a text that is to be converted must not have, and what it must have, anywhere.
inline constexpr std::string_view kOnlyInConverted = "QSIZE";
inline constexpr std::string_view kOnlyInUserFiles = "definelevelname";
/// False where ConvertUserCon would refuse the text.
bool CanBeConverted(std::string_view text);

/// Converts a document, a user file of the 1.3D dialect, into one of the 1.4/1.5 dialect
/// and returns what each step did. Everything written is red; afterwards the caret is at 0, the
/// editor is in front, and there is nothing to undo. `converted` runs then, to mark the document.
///
/// A file that is converted already, or is no user file, is refused with a message; nothing but the
/// selection changes, the caret stays, and the result is empty. A conversion that fails passes
/// its RuntimeError on and leaves the document as `afterFailure` says.
std::vector<StepResult> ConvertUserCon(RichTextBox& editor, ScreenPointer& pointer,
                                       MessageBox& messages, const std::function<void()>& converted,
                                       AfterFailure afterFailure = AfterFailure::kTextFromBefore);

}  // namespace tessel
