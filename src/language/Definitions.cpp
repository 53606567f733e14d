#include "language/Definitions.h"

#include <charconv>

#include "language/Statement.h"

namespace tessel::language {
namespace {

/// Where the last of its words ends.
Position LastWordEnd(const Definition& definition) {
  if (!definition.rest.IsEmpty()) return definition.rest.end;
  return definition.HasValue() ? definition.value.end : definition.name.end;
}

template <class Wanted>
std::vector<Definition> Collect(const Script& script, Wanted wanted) {
  std::vector<Definition> definitions;
  for (const Mark mark : script.Marks()) {
    if (mark.keyword != Keyword::kDefine) continue;
    const Definition definition = ReadDefinition(script, mark);
    if (wanted(definition)) definitions.push_back(definition);
  }
  return definitions;
}

}  // namespace

std::optional<std::int32_t> NumberOf(std::string_view word) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
  return number;
}

Definition ReadDefinition(const Script& script, Mark mark) {
  WordReader words(script, mark);
  Definition definition;
  definition.keyword = words.KeywordRange();
  const auto nextBehind = [&](Range before) {
    return words.Next().value_or(Range{before.end, before.end});
  };
  definition.name = nextBehind(definition.keyword);
  definition.value = nextBehind(definition.name);
  definition.rest = nextBehind(definition.value);
  while (const auto word = words.Next()) definition.rest.end = word->end;
  definition.end = words.End();
  definition.number = NumberOf(script.Text(definition.value));
  definition.hasTab =
      script.Text({definition.keyword.begin, definition.end}).find('\t') != std::string_view::npos;
  return definition;
}

std::vector<Definition> Definitions(const Script& script) {
  return Collect(script, [](const Definition&) { return true; });
}

std::vector<Definition> DefinitionsOf(const Script& script, std::string_view name) {
  return Collect(script, [&](const Definition& definition) {
    return SameName(script.Text(definition.name), name);
  });
}

std::optional<Definition> DefinitionAt(const Script& script, Position offset) {
  const auto mark = script.LastMarkUpTo(offset);
  if (!mark || mark->keyword != Keyword::kDefine) return std::nullopt;
  const Definition definition = ReadDefinition(script, *mark);
  if (offset >= LastWordEnd(definition)) return std::nullopt;
  return definition;
}

}  // namespace tessel::language
