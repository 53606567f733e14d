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

// Three quarters of all words are ruled out by their length and first letter.
constexpr std::size_t kLongest = 16;
constexpr std::size_t kLetters = 32;

constexpr std::size_t LetterOf(char c) { return static_cast<unsigned char>(c) % kLetters; }

constexpr auto MakeCandidates() {
  std::array<std::array<bool, kLetters>, kLongest + 1> candidates{};
  for (std::size_t i = 0; i < kWords; ++i) {
    candidates[kGrammars[i].word.size()][LetterOf(kGrammars[i].word.front())] = true;
  }
  return candidates;
}

constexpr auto kCandidates = MakeCandidates();

}  // namespace

const Grammar& GrammarOf(Keyword keyword) { return kGrammars[static_cast<std::size_t>(keyword)]; }

std::optional<Keyword> KeywordOf(std::string_view word) {
  if (word.empty() || word.size() > kLongest) return std::nullopt;
  if (!kCandidates[word.size()][LetterOf(word.front())]) return std::nullopt;
  for (std::size_t i = 0; i < kWords; ++i) {
    if (SameName(kGrammars[i].word, word)) return static_cast<Keyword>(i);
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
