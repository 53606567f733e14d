// What a word means: parameters, value, where it is defined.
#include <algorithm>

#include "language/NameAt.h"
#include "language/Statement.h"
#include "lsp/features/Features.h"
#include "settings/PanelItems.h"
#include "text/SafeText.h"

namespace tessel::lsp {
namespace {

constexpr std::size_t kMostDefinitions = 10;
constexpr Position kMostOfStatement = 200;

void AddParameters(const Session& session, std::string_view word, std::string& text) {
  const auto known = std::ranges::find_if(session.known.words, [&](const ScriptWord& each) {
    return language::SameName(each.word, word);
  });
  if (known == session.known.words.end()) return;
  text += ToUtf8(known->word);
  if (!known->parameters.empty()) text += "  " + ToUtf8(known->parameters);
  text += '\n';
}

void AddPanelItem(std::string_view word, std::string& text) {
  if (const auto item = FindPanelItem(std::string(word))) {
    text += "settings panel: " + item->section + ", " + item->name + '\n';
  }
}

/// The statement's first line, as it stands, and its place.
void AddDefinition(const Document& document, language::Range word, std::string& text) {
  const auto statement = language::StatementAt(document.Script(), word.begin);
  const std::size_t line = document.Lines().LineOf(word.begin);
  const Position lineEnd = document.Lines().LineIn(document.Bytes(), line).end;
  const language::Range whole = statement ? statement->range : word;
  const Position end =
      std::min({whole.end, std::max(lineEnd, whole.begin), whole.begin + kMostOfStatement});
  text += document.Utf8({whole.begin, end}) + "\n  " + NameOf(document) + ", line " +
          std::to_string(line + 1) + '\n';
}

void AddDefinitions(Session& session, const Document& document, std::string_view name,
                    std::string& text) {
  std::size_t count = 0;
  for (const DocumentRef& file : session.workspace.FilesAround(document)) {
    for (const language::Use& use : language::DefinitionsOfName(file->Script(), name)) {
      if (++count <= kMostDefinitions) AddDefinition(*file, use.word, text);
    }
  }
  if (count > kMostDefinitions)
    text += "and " + std::to_string(count - kMostDefinitions) + " more\n";
}

}  // namespace

std::string Hover(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto word = language::WordAt(document.Script(), OffsetIn(session, params, document));
  if (!word || !document.ForeignersIn(*word).empty()) return "null";
  const std::string_view name = document.Script().Text(*word);
  std::string text;
  AddParameters(session, name, text);
  AddDefinitions(session, document, name, text);
  AddPanelItem(name, text);
  if (text.empty()) return "null";
  text.pop_back();
  return Dump({{"contents", {{"kind", "plaintext"}, {"value", text}}},
               {"range", RangeAsJson(document, *word, session.client.encoding)}});
}

}  // namespace tessel::lsp
