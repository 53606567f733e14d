// What a caret at a name asks for.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "language/Names.h"

namespace tessel::language {

/// WordAt, but for braces and keywords.
std::optional<Range> NameAt(const Script& script, Position offset);

/// The kind of what a word names, where its statement tells: "state NAME".
std::optional<Keyword> KindOfName(const Script& script, Range word);

/// A state and an action may share a name. Where the kind is known and some have it, the others go;
/// `keywordOf` gives what defines each.
template <class Found, class KeywordOf>
void KeepThoseOfKind(std::vector<Found>& found, std::optional<Keyword> kind, KeywordOf keywordOf) {
  const auto isOther = [&](const Found& each) { return keywordOf(each) != kind; };
  if (!std::ranges::all_of(found, isOther)) std::erase_if(found, isOther);
}

/// What has been typed of a word in front of a caret, perhaps nothing; nothing at all in a comment.
std::optional<Range> TypedAt(const Script& script, Position caret);

/// False for a symbol that has a number in place of a name.
bool HasName(const Symbol& symbol);

}  // namespace tessel::language
