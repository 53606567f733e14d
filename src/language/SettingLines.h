// Whether a piece of a text belongs to a setting.
#pragma once

#include "language/Script.h"

namespace tessel::language {

/// True when the piece lies in one define behind the name: in the value, or in what follows it up
/// to a comment. An empty piece lies in none.
bool LiesInDefineValue(const Script& script, Range piece);
/// The same for what stands behind the keyword of a level's line, a comment too.
bool LiesInLevel(const Script& script, Range piece);

}  // namespace tessel::language
