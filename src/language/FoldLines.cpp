#include "language/FoldLines.h"

#include <algorithm>

namespace tessel::language {
namespace {

struct Lines {
  std::size_t first;
  std::size_t last;
};

std::vector<Position> LineBegins(const Script& script) {
  const std::string_view text = script.Text();
  std::vector<Position> begins;
  begins.reserve(static_cast<std::size_t>(script.LineCount()));
  begins.push_back(0);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' && text[i] != '\n') continue;
    if (text.substr(i, 2) == "\r\n") ++i;
    begins.push_back(static_cast<Position>(i + 1));
  }
  return begins;
}

std::vector<Lines> LinesOf(const std::vector<Block>& blocks, const std::vector<Position>& begins) {
  const auto lineOf = [&](Position offset) {
    return static_cast<std::size_t>(std::ranges::upper_bound(begins, offset) - begins.begin()) - 1;
  };
  std::vector<Lines> lines;
  lines.reserve(blocks.size());
  for (const Block& block : blocks) {
    const Position last = std::max(block.range.end - 1, block.range.begin);
    lines.push_back({lineOf(block.range.begin), lineOf(last)});
  }
  return lines;
}

}  // namespace

std::vector<FoldLine> FoldLines(const Script& script, const std::vector<Block>& blocks) {
  const std::vector<Position> begins = LineBegins(script);
  const std::vector<Lines> spans = LinesOf(blocks, begins);
  std::vector<FoldLine> lines(begins.size());
  std::vector<bool> begun(begins.size() + 1);
  for (const Lines& span : spans) {
    if (span.last > span.first) begun[span.first] = true;
  }
  std::vector<std::int32_t> deeper(begins.size() + 1);  // than the line before
  for (Lines span : spans) {
    if (span.last > span.first && begun[span.last]) --span.last;
    if (span.last == span.first) continue;
    lines[span.first].opens = true;
    ++deeper[span.first + 1];
    --deeper[span.last + 1];
  }
  std::int32_t depth = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    depth += deeper[i];
    lines[i].depth = static_cast<std::uint16_t>(std::min<std::int32_t>(depth, kDeepestFold));
  }
  return lines;
}

}  // namespace tessel::language
