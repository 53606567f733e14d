// The one search of the editor text.
#pragma once

#include <string_view>

#include "platform/TextTypes.h"

namespace tessel {

/// Options of a search, by the rich-text editor's own values; they can be added.
enum FindOptions : int { kFindDefault = 0, kFindWholeWord = 2, kFindMatchCase = 4 };

/// The first match of `wanted` that lies in text[start, end), or kNotFound; kNotFound also for an
/// empty `wanted` and a start past the end.
///
/// Case is ignored (by the letters of Windows-1252) unless kFindMatchCase is set. With
/// kFindWholeWord an edge of the match that is a word character must not have a word character as
/// its outer neighbour in `text`; an edge that is none always qualifies.
Position FindText(std::string_view text, std::string_view wanted, Position start, Position end,
                  int options);

}  // namespace tessel
