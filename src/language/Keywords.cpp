#include "language/Keywords.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/Text.h"

namespace tessel::language {
namespace {

// In the order of Keyword.
constexpr std::array<Grammar, 19> kGrammars = {{
    {"define", Form::kLine, 1},
    {"definequote", Form::kLine, 1},
    {"definevolumename", Form::kLine, 1},
    {"defineskillname", Form::kLine, 1},
    {"definelevelname", Form::kLine, 0},
    {"definesound", Form::kLine, 1},
    {"include", Form::kLine, 1},
    {"music", Form::kList, 1},
    {"gamestartup", Form::kList, 0},
    {"action", Form::kNames, 1},
    {"move", Form::kNames, 1},
    {"ai", Form::kNames, 1},
    {"state", Form::kNames, 1},
    {"ends", Form::kAlone, 0},
    {"actor", Form::kNames, 1},
    {"useractor", Form::kNames, 2},
    {"enda", Form::kAlone, 0},
    {"{", Form::kAlone, 0},
    {"}", Form::kAlone, 0},
}};

constexpr std::size_t kWords = kGrammars.size() - 2;  // without the braces

// By length and first letter there are two candidates at most.
constexpr std::size_t kLongest = 16;
constexpr std::size_t kLetters = 32;
using Candidates = std::array<const Grammar*, 2>;

constexpr std::size_t LetterOf(char c) { return static_cast<unsigned char>(c) % kLetters; }

constexpr auto MakeCandidates() {
  std::array<std::array<Candidates, kLetters>, kLongest + 1> all{};
  for (std::size_t i = 0; i < kWords; ++i) {
    Candidates& here = all[kGrammars[i].word.size()][LetterOf(kGrammars[i].word.front())];
    here[here[0] == nullptr ? 0 : 1] = &kGrammars[i];
  }
  return all;
}

constexpr auto kCandidates = MakeCandidates();

/// `lower` has small letters of ASCII only, and the word has its length.
bool IsWord(std::string_view lower, std::string_view word) {
  constexpr int kCaseBit = 0x20;
  for (std::size_t i = 0; i < lower.size(); ++i) {
    if ((word[i] | kCaseBit) != lower[i]) return false;
  }
  return true;
}

}  // namespace

const Grammar& GrammarOf(Keyword keyword) { return kGrammars[static_cast<std::size_t>(keyword)]; }

std::optional<Keyword> KeywordOf(std::string_view word) {
  if (word.empty() || word.size() > kLongest) return std::nullopt;
  for (const Grammar* candidate : kCandidates[word.size()][LetterOf(word.front())]) {
    if (candidate == nullptr) break;
    if (IsWord(candidate->word, word)) return static_cast<Keyword>(candidate - kGrammars.data());
  }
  return std::nullopt;
}

bool SameName(std::string_view a, std::string_view b) {
  const auto& lower = LowerTable();
  return a.size() == b.size() && std::ranges::equal(a, b, [&](char x, char y) {
           return lower[static_cast<unsigned char>(x)] == lower[static_cast<unsigned char>(y)];
         });
}

}  // namespace tessel::language
