#include "check/rules/RuleHelp.h"

#include <algorithm>
#include <initializer_list>
#include <unordered_map>

#include "language/Definitions.h"
#include "text/SafeText.h"

namespace tessel::check {
namespace {

using language::Keyword;
using language::Range;

constexpr std::size_t kMostShown = 60;

bool IsBlankOrComment(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == text.npos || text.substr(first, 2) == "//";
}

bool SaySame(const Mod& mod, const PlacedStatement& a, const PlacedStatement& b) {
  const FileFacts& fileA = mod.Files()[a.file];
  const FileFacts& fileB = mod.Files()[b.file];
  if (a.statement->words != b.statement->words) return false;
  for (std::size_t i = 0; i < a.statement->words; ++i) {
    if (!language::SameName(fileA.WordText(*a.statement, i), fileB.WordText(*b.statement, i))) {
      return false;
    }
  }
  // Of a text only the first words are kept.
  return a.statement->words < 8 ||
         language::SameName(fileA.Text(a.statement->range), fileB.Text(b.statement->range));
}

}  // namespace

std::string Quoted(std::string_view bytes) {
  const bool cut = bytes.size() > kMostShown;
  return "\"" + ToUtf8(bytes.substr(0, kMostShown)) + (cut ? "..." : "") + "\"";
}

Fix TakeOut(const FileFacts& file, const Statement& statement) {
  const std::string_view text = file.Text();
  const Range range = statement.range.AsRange();
  const Range line = LineAround(text, range.begin);
  const bool alone = range.end <= line.end &&
                     IsBlankOrComment(language::Slice(text, {line.begin, range.begin})) &&
                     IsBlankOrComment(language::Slice(text, {range.end, line.end}));
  const Range taken = alone ? Range{line.begin, NextLine(text, range.begin)} : range;
  return {alone ? "take the line out" : "take the statement out", {{taken, ""}}};
}

void AddDoubled(const Mod& mod, const PlacedStatement& first, const PlacedStatement& again,
                const std::string& what, Findings& findings) {
  const FileFacts& file = mod.Files()[again.file];
  Finding finding;
  finding.file = again.file;
  finding.range = again.statement->range.AsRange();
  finding.text = what + " stands in " +
                 mod.PlaceText(first.file, first.statement->range.begin, again.file) + " already";
  if (SaySame(mod, first, again)) finding.fix = TakeOut(file, *again.statement);
  findings.push_back(std::move(finding));
}

void FindDoubledNumbers(const Mod& mod, Keyword keyword, NumberKey keyOf, std::string_view what,
                        std::size_t keyWords, Findings& findings) {
  std::unordered_map<std::int64_t, PlacedStatement> firsts;
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& statement : file.Statements(keyword)) {
      const auto key = keyOf(file, statement);
      if (!key) continue;
      const PlacedStatement place = {i, &statement};
      const auto [first, isNew] = firsts.try_emplace(*key, place);
      if (isNew) continue;
      std::string name(what);
      for (std::size_t k = 0; k < keyWords; ++k) {
        name += " " + ToUtf8(file.WordText(statement, k));
      }
      AddDoubled(mod, first->second, place, name, findings);
    }
  }
}

void FindDoubledNames(const Mod& mod, Keyword keyword, std::string_view what, Findings& findings) {
  std::size_t count = 0;
  for (const FileFacts& file : mod.Files()) count += file.Statements(keyword).size();
  NameTable names(count);
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const auto& statements = mod.Files()[i].Statements(keyword);
    for (std::size_t k = 0; k < statements.size(); ++k) {
      const std::string_view name = mod.Files()[i].WordText(statements[k], 0);
      if (name.empty()) continue;
      const NamedPlace* first =
          names.Add({name, static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(k)});
      if (first == nullptr) continue;
      const PlacedStatement before = {
          first->file, &mod.Files()[first->file].Statements(keyword)[first->statement]};
      const PlacedStatement again = {i, &statements[k]};
      if (SaySame(mod, before, again)) continue;
      AddDoubled(mod, before, again, std::string(what) + " " + Quoted(name), findings);
    }
  }
}

std::optional<std::int32_t> CountingNumber(std::string_view word) {
  const auto number = language::NumberOf(word);
  return number.value_or(-1) >= 0 ? number : std::nullopt;
}

Range WordsFrom(const FileFacts& file, const Statement& statement, std::size_t index) {
  return {file.Word(statement, index).begin, statement.range.end};
}

void FindOpenBlocks(const Mod& mod, std::initializer_list<Keyword> openers, std::string_view text,
                    Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    for (const language::Block& block : mod.Files()[i].OpenBlocks()) {
      const Keyword keyword = block.opener.keyword;
      if (std::ranges::find(openers, keyword) == openers.end()) continue;
      const Position begin = block.opener.begin;
      findings.push_back({.file = i,
                          .range = {begin, begin + std::ssize(language::GrammarOf(keyword).word)},
                          .text = std::string(text)});
    }
  }
}

}  // namespace tessel::check
