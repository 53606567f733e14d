#include "check/facts/Mod.h"

#include <algorithm>
#include <array>

#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::check {
namespace {

using language::Keyword;
using language::Role;

constexpr std::array<Keyword, 3> kNaming = {Keyword::kAction, Keyword::kMove, Keyword::kAi};

std::string_view LastPart(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == path.npos ? path : path.substr(slash + 1);
}

std::size_t CountOf(const std::vector<FileFacts>& files, std::span<const Keyword> keywords) {
  std::size_t count = 0;
  for (const FileFacts& file : files) {
    for (const Keyword keyword : keywords) count += file.Statements(keyword).size();
  }
  return count;
}

/// Adds the first word of each statement of the keyword that defines or opens something. The result
/// is those whose name is there already.
std::vector<PlacedStatement> AddNames(const std::vector<FileFacts>& files, Keyword keyword,
                                      NameTable& table) {
  std::vector<PlacedStatement> again;
  for (std::size_t i = 0; i < files.size(); ++i) {
    const auto& statements = files[i].Statements(keyword);
    for (std::size_t k = 0; k < statements.size(); ++k) {
      if (statements[k].role == Role::kUses || statements[k].words == 0) continue;
      const NamedPlace* before =
          table.Add({files[i].WordText(statements[k], 0), static_cast<std::uint32_t>(i),
                     static_cast<std::uint32_t>(k)});
      if (before != nullptr) again.push_back({i, &statements[k]});
    }
  }
  return again;
}

std::vector<FileFacts> FactsOf(std::span<const Source> sources, const CommandTable& commands) {
  std::vector<FileFacts> files;
  files.reserve(sources.size());
  for (const Source& source : sources) files.emplace_back(source, commands);
  return files;
}

}  // namespace

Mod::Mod(std::span<const Source> sources, const Knowledge& knowledge)
    : knowledge_(knowledge),
      commands_(knowledge.words),
      files_(FactsOf(sources, commands_)),
      defines_(CountOf(files_, std::array{Keyword::kDefine})),
      states_(CountOf(files_, std::array{Keyword::kState})),
      otherNames_(CountOf(files_, kNaming)) {
  repeatedDefines_ = AddNames(files_, Keyword::kDefine, defines_);
  AddNames(files_, Keyword::kState, states_);
  for (const Keyword keyword : kNaming) AddNames(files_, keyword, otherNames_);
  panelDefines_.reserve(files_.size());
  for (const FileFacts& file : files_) panelDefines_.push_back(PanelDefinesOf(file));
  hasUserFile_ = std::ranges::any_of(files_, IsUserFile);
  isWhole_ = AreAllIncludesGiven();
}

std::optional<PlacedStatement> Mod::DefineOf(std::string_view name) const {
  const NamedPlace* place = defines_.Find(name);
  if (place == nullptr) return std::nullopt;
  return PlacedStatement{place->file,
                         &files_[place->file].Statements(Keyword::kDefine)[place->statement]};
}

bool Mod::Defines(std::string_view name) const {
  return defines_.Find(name) != nullptr || otherNames_.Find(name) != nullptr || HasState(name);
}

bool Mod::HasState(std::string_view name) const { return states_.Find(name) != nullptr; }

bool Mod::Gives(std::string_view fileName) const {
  return std::ranges::any_of(files_, [&](const FileFacts& file) {
    return EqualIgnoringAsciiCase(LastPart(file.Name()), LastPart(fileName));
  });
}

bool Mod::AreAllIncludesGiven() const {
  bool any = false;
  for (const FileFacts& file : files_) {
    for (const Statement& include : file.Statements(Keyword::kInclude)) {
      if (!Gives(file.WordText(include, 0))) return false;
      any = true;
    }
  }
  return any;
}

std::string Mod::PlaceText(std::size_t file, Position offset, std::size_t seenFrom) const {
  const std::string line = "line " + std::to_string(files_[file].Lines().PlaceOf(offset).line);
  return file == seenFrom ? line : line + " of " + ForTerminal(files_[file].Name());
}

}  // namespace tessel::check
