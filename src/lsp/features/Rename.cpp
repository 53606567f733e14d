// Another name, in all files of the mod.
#include <algorithm>

#include "language/Reader.h"
#include "lsp/features/Edits.h"
#include "lsp/features/Features.h"
#include "lsp/features/NameUses.h"
#include "text/SafeText.h"

namespace tessel::lsp {
namespace {

ResponseError Refusal(const std::string& sentence) { return {ErrorCode::kRequestFailed, sentence}; }

/// True for what is read as one word and can be a name.
bool IsOneWord(const std::string& name) {
  const language::Token token = language::Reader(name).Next();
  return token.kind == language::TokenKind::kWord && token.range.Length() == std::ssize(name) &&
         !language::KeywordOf(name);
}

bool IsNumberLike(const std::string& name) {
  return name.find_first_not_of("-0123456789") == name.npos;
}

/// The bytes of the new name. It must not be another's.
std::string NewName(Session& session, const Document& document, std::string_view old,
                    const std::string& typed) {
  const auto name = FromTerminal(typed);
  if (!name) throw Refusal("\"" + typed + "\" has a character that a CON file cannot hold.");
  if (!IsOneWord(*name) || IsNumberLike(*name))
    throw Refusal("\"" + typed + "\" cannot be a name.");
  if (language::SameName(old, *name)) return *name;
  const auto isIt = [&](const ScriptWord& word) { return language::SameName(word.word, *name); };
  if (std::ranges::any_of(session.known.words, isIt)) {
    throw Refusal("\"" + typed + "\" is a script word.");
  }
  const auto others = UsesAround(session, document, *name);
  if (!others.empty()) {
    throw Refusal("\"" + typed + "\" is a name already: " + NameOf(*others.front().document) +
                  " has it.");
  }
  return *name;
}

bool IsDefined(const std::vector<PlacedUse>& uses) {
  return std::ranges::any_of(
      uses, [](const PlacedUse& use) { return use.use.kind == language::UseKind::kDefines; });
}

std::vector<FileEdits> Renamed(const std::vector<PlacedUse>& uses, const std::string& name) {
  std::vector<FileEdits> files;
  for (const PlacedUse& use : uses) {
    if (files.empty() || files.back().document != use.document.get()) {
      files.push_back({use.document.get(), {}});
    }
    files.back().edits.push_back({use.use.word, name});
  }
  return files;
}

}  // namespace

std::string PrepareRename(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto name = NameIn(session, params, document);
  if (!name || !IsDefined(UsesAround(session, document, document.Script().Text(*name)))) {
    return "null";
  }
  return Dump({{"range", RangeAsJson(document, *name, session.client.encoding)},
               {"placeholder", document.Utf8(*name)}});
}

std::string Rename(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const std::string& typed = TextMember(params, "newName");
  const auto name = NameIn(session, params, document);
  if (!name) throw Refusal("There is no name at this place.");
  const std::string_view old = document.Script().Text(*name);
  const auto uses = UsesAround(session, document, old);
  if (!IsDefined(uses)) throw Refusal("\"" + document.Utf8(*name) + "\" is defined nowhere.");
  const std::string fresh = NewName(session, document, old, typed);
  return Dump(WorkspaceEdit(session, Renamed(uses, ToUtf8(fresh))));
}

}  // namespace tessel::lsp
