#include "language/SettingLines.h"

#include "language/Definitions.h"
#include "language/Levels.h"

namespace tessel::language {

bool LiesInDefineValue(const Script& script, Range piece) {
  const auto definition = DefinitionAt(script, piece.begin);
  return definition && !piece.IsEmpty() && definition->HasValue() &&
         piece.begin >= definition->value.begin && piece.end <= definition->end;
}

bool LiesInLevel(const Script& script, Range piece) {
  const auto mark = script.LastMarkUpTo(piece.begin);
  if (!mark || mark->keyword != Keyword::kDefineLevelName || piece.IsEmpty()) return false;
  const Level level = ReadLevel(script, *mark);
  return piece.begin > level.keyword.end && piece.end <= level.lineEnd;
}

}  // namespace tessel::language
