// Words and names that complete what is typed.
#include <algorithm>
#include <set>

#include "language/NameAt.h"
#include "language/Statement.h"
#include "lsp/features/Features.h"
#include "lsp/features/Kinds.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::lsp {
namespace {

constexpr std::size_t kMostItems = 200;

bool BeginsWith(std::string_view word, std::string_view prefix) {
  return EqualIgnoringAsciiCase(word.substr(0, prefix.size()), prefix);
}

/// What is offered: each name once, whatever its case.
class Offer {
 public:
  Offer(const Session& session, const Document& document, language::Range typed)
      : session_(session),
        prefix_(document.Script().Text(typed)),
        range_(RangeAsJson(document, typed, session.client.encoding)) {}

  void AddNames(const Document& document, language::Range typed) {
    language::BlockWalk walk(document.Script());
    while (!IsFull() && walk.Next()) {
      const bool gives = walk.CurrentRole() == language::Role::kDefines ||
                         walk.CurrentRole() == language::Role::kOpens;
      if (!gives) continue;
      language::Symbol symbol;
      symbol.keyword = walk.Current().keyword;
      symbol.name = language::NameOf(document.Script(), walk.Current());
      if (!language::HasName(symbol) || symbol.name.begin == typed.begin) continue;
      if (!document.ForeignersIn(symbol.name).empty()) continue;
      Add(document.Script().Text(symbol.name), CompletionKindOf(symbol.keyword), {});
    }
  }

  void AddWords() {
    for (const ScriptWord& word : session_.known.words) {
      Add(word.word, kCompletionKindOfCommand, word.parameters);
    }
  }

  bool IsFull() const { return items_.size() >= kMostItems; }
  Json AsJson() && { return {{"isIncomplete", IsFull()}, {"items", std::move(items_)}}; }

 private:
  void Add(std::string_view word, int kind, std::string_view detail) {
    if (IsFull() || !BeginsWith(word, prefix_) || !offered_.insert(ToLowerText(word)).second)
      return;
    const std::string label = ToUtf8(word);
    Json item = {
        {"label", label}, {"kind", kind}, {"textEdit", {{"range", range_}, {"newText", label}}}};
    if (!detail.empty()) item["detail"] = ToUtf8(detail);
    items_.push_back(std::move(item));
  }

  const Session& session_;
  std::string_view prefix_;
  Json range_;
  Json items_ = Json::array();
  std::set<std::string> offered_;
};

}  // namespace

std::string Completion(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto typed = language::TypedAt(document.Script(), OffsetIn(session, params, document));
  if (!typed) return "null";
  Offer offer(session, document, *typed);
  offer.AddWords();
  for (const DocumentRef& file : session.workspace.FilesAround(document)) {
    const bool isOwn = file.get() == &document;
    offer.AddNames(*file, isOwn ? *typed : language::Range{-1, -1});
  }
  return Dump(std::move(offer).AsJson());
}

}  // namespace tessel::lsp
