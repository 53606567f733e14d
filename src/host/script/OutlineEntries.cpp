#include "host/script/OutlineEntries.h"

#include <algorithm>

#include "language/Levels.h"

namespace tessel {
namespace {

constexpr Position kMostOfDetail = 60;

/// What an entry shows behind its name.
language::Range ShownDetail(const language::Script& script, const language::Symbol& symbol) {
  switch (symbol.keyword) {
    case language::Keyword::kDefine:
    case language::Keyword::kDefineQuote:
    case language::Keyword::kDefineVolumeName:
    case language::Keyword::kDefineSkillName:
      return symbol.detail;
    case language::Keyword::kDefineLevelName:
      return ReadLevel(script, {symbol.keyword, symbol.range.begin}).title;
    default:
      return {};
  }
}

std::string TextOf(const language::Script& script, const language::Symbol& symbol) {
  std::string text(script.Text(symbol.name));
  language::Range detail = ShownDetail(script, symbol);
  if (detail.IsEmpty()) return text;
  detail.end = std::min(detail.end, detail.begin + kMostOfDetail);
  (text += "  ") += script.Text(detail);
  return text;
}

}  // namespace

std::vector<OutlineEntry> OutlineOf(const language::Script& script,
                                    const std::vector<language::Symbol>& symbols) {
  std::vector<OutlineEntry> entries;
  entries.reserve(symbols.size());
  for (const language::Symbol& symbol : symbols) {
    entries.push_back({symbol.keyword, symbol.range.begin, symbol.name, TextOf(script, symbol)});
  }
  return entries;
}

}  // namespace tessel
