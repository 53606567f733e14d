// The line breaks of a text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessel {

enum class LineEnd { kCrLf, kLf, kCr };

/// How many of each there are; a CR LF is one break.
struct LineEnds {
  std::size_t crLf = 0, lf = 0, cr = 0;

  bool Mixed() const { return (crLf != 0) + (lf != 0) + (cr != 0) > 1; }
  /// The only kind; nothing where there are several, or none at all.
  std::optional<LineEnd> Only() const;
};

LineEnds LineEndsOf(std::string_view text);

/// "CR LF", "LF" or "CR".
const char* NameOf(LineEnd lineEnd);

/// The lines as the editor counts them, each with its break; only the last one may have none. A
/// text that ends with a break has no empty line behind it here.
std::vector<std::string_view> LinesWithBreaks(std::string_view text);

/// A line of LinesWithBreaks without its break.
std::string_view WithoutBreak(std::string_view line);

/// The text with each of its breaks written as this one.
std::string WithLineEnds(std::string_view text, LineEnd lineEnd);

}  // namespace tessel
