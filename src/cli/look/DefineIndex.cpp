#include "cli/look/DefineIndex.h"

#include <algorithm>
#include <tuple>

#include "language/Statement.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

using language::Definition;
using language::Keyword;
using language::Range;

/// FNV-1a: equal for names that differ in case alone.
std::uint64_t HashOf(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : name) {
    hash = (hash ^ LowerTable()[static_cast<unsigned char>(c)]) * 0x100000001B3U;
  }
  return hash;
}

std::string_view NameAt(const language::Script& script, language::Mark mark) {
  language::WordReader words(script, mark);
  return script.Text(words.Next().value_or(Range{}));
}

}  // namespace

DefineIndex::DefineIndex(const language::Script& script) : script_(script) {
  for (const language::Mark mark : script.Marks()) {
    if (mark.keyword == Keyword::kDefine) {
      entries_.push_back({HashOf(NameAt(script, mark)), mark.begin});
    }
  }
  std::ranges::sort(entries_, {}, [](const Entry& e) { return std::tuple(e.hash, e.begin); });
}

Definition DefineIndex::At(const Entry& entry) const {
  return language::ReadDefinition(script_, {Keyword::kDefine, entry.begin});
}

std::vector<Definition> DefineIndex::Of(std::string_view name) const {
  std::vector<Definition> found;
  const std::uint64_t hash = HashOf(name);
  const auto first = std::ranges::lower_bound(entries_, hash, {}, &Entry::hash);
  for (auto entry = first; entry != entries_.end() && entry->hash == hash; ++entry) {
    const Definition definition = At(*entry);
    if (language::SameName(script_.Text(definition.name), name)) found.push_back(definition);
  }
  return found;
}

std::vector<Definition> DefineIndex::Beginning(std::string_view name) const {
  std::vector<Definition> found;
  for (const language::Mark mark : script_.Marks()) {
    if (mark.keyword != Keyword::kDefine) continue;
    if (language::SameName(NameAt(script_, mark).substr(0, name.size()), name)) {
      found.push_back(language::ReadDefinition(script_, mark));
    }
  }
  return found;
}

std::vector<std::string> DefineIndex::Names() const {
  std::vector<std::string> names;
  names.reserve(entries_.size());
  for (const Entry& entry : entries_) names.push_back(ToUtf8(script_.Text(At(entry).name)));
  std::ranges::sort(names);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

}  // namespace tessel::cli
