#include "host/script/KnownNames.h"

#include "language/NameAt.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr Position kQuicklyRead = 512 * 1024;

}  // namespace

bool BeginsWith(std::string_view word, std::string_view prefix) {
  return EqualIgnoringAsciiCase(word.substr(0, prefix.size()), prefix);
}

KnownNames::KnownNames(const DocumentList& documents, OpenScripts& scripts)
    : documents_(documents),
      scripts_(scripts),
      changed_(scripts.Changed.Connect(
          [this](Slot slot, const ChangedRange&) { At(slot).stale = true; })) {}

KnownNames::Names& KnownNames::At(Slot slot) {
  const auto index = static_cast<std::size_t>(Index(slot));
  if (index >= names_.size()) names_.resize(index + 1);
  return names_[index];
}

void KnownNames::Read(const Document& document, Names& names) {
  const language::Script& script = scripts_.Of(document.Place());
  names = {true, false, {}};
  for (const language::Symbol& symbol : language::Symbols(script)) {
    if (language::HasName(symbol)) names.names.emplace_back(script.Text(symbol.name));
  }
}

std::vector<std::string> KnownNames::BeginningWith(std::string_view prefix, bool thoroughly) {
  std::vector<std::string> found;
  for (const Document& document : documents_.All()) {
    Names& names = At(document.Place());
    const bool now = thoroughly || !names.read || document.Editor().Length() <= kQuicklyRead;
    if (names.stale && now) Read(document, names);
    for (const std::string& name : names.names) {
      if (BeginsWith(name, prefix)) found.push_back(name);
    }
  }
  return found;
}

}  // namespace tessel
