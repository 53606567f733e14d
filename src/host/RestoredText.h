// Texts that come back into the editor from where the program kept them.
#pragma once

#include <string>

#include "control/ucTessel.h"

namespace tessel {

/// Shows the text as a modified document; no file is written. It becomes one edit, which Undo takes
/// back, of the document with that path, opened if necessary; and a new "Untitled" document when
/// there is no such file, when that cannot be opened (which is told), or when its document has
/// changes of its own. Returns false, with the reason told, when the text is nowhere to be seen.
bool ShowRestoredText(ucTessel& tessel, Files& files, const std::string& path,
                      const std::string& bytes);

/// Makes the text the editor's, in black, with the caret at 0: one edit, which Undo takes back.
void ReplaceText(RichTextBox& editor, const std::string& bytes);

}  // namespace tessel
