// The text tools: what becomes of the selected text. ToUpperText and ToLowerText stand in
// text/Text.h.
#pragma once

#include <string>
#include <string_view>

namespace tessel {

/// "/* " + text + " */" and a line feed.
std::string RemarkBlock(std::string_view text);

/// "// " + text: only the first line of several becomes a comment.
std::string RemarkLine(std::string_view text);

/// A tab in front of the text and behind every CR LF in it.
std::string IndentText(std::string_view text);

/// Takes either remark off again: surrounding "/*" and "*/" with one blank inside each and one line
/// break behind; otherwise a leading "//" with one blank behind it. Any other text stays as it is.
std::string UnremarkText(std::string_view text);

}  // namespace tessel
