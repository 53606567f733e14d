#include "language/Levels.h"

#include <algorithm>
#include <array>

#include "language/Definitions.h"
#include "language/Statement.h"

namespace tessel::language {
namespace {

bool AreOneBlankApart(const Script& script, std::initializer_list<Range> words) {
  const auto* const apart =
      std::adjacent_find(words.begin(), words.end(), [&](Range before, Range behind) {
        return !behind.IsEmpty() && script.Text({before.end, behind.begin}) != " ";
      });
  return apart == words.end();
}

}  // namespace

Level ReadLevel(const Script& script, Mark mark) {
  WordReader words(script, mark);
  Level level;
  level.keyword = words.KeywordRange();
  Range before = level.keyword;
  for (Range Level::*const field :
       {&Level::episode, &Level::number, &Level::map, &Level::par, &Level::record, &Level::title}) {
    before = level.*field = words.Next().value_or(Range{before.end, before.end});
  }
  while (const auto word = words.Next()) level.title.end = word->end;

  level.lineEnd = words.End();
  while (level.lineEnd < script.Length() && script.Text()[level.lineEnd] != '\r' &&
         script.Text()[level.lineEnd] != '\n') {
    ++level.lineEnd;
  }
  level.episodeNumber = NumberOf(script.Text(level.episode));
  level.levelNumber = NumberOf(script.Text(level.number));
  level.singleBlanks = AreOneBlankApart(script, {level.keyword, level.episode, level.number,
                                                 level.map, level.par, level.record, level.title});
  return level;
}

std::vector<Level> Levels(const Script& script) {
  std::vector<Level> levels;
  for (const Mark mark : script.Marks()) {
    if (mark.keyword == Keyword::kDefineLevelName) levels.push_back(ReadLevel(script, mark));
  }
  return levels;
}

std::vector<Level> LevelsOf(const Script& script, std::int32_t episode, std::int32_t number) {
  std::vector<Level> levels = Levels(script);
  std::erase_if(levels, [&](const Level& level) {
    return level.episodeNumber != episode || level.levelNumber != number;
  });
  return levels;
}

}  // namespace tessel::language
