#include "check/facts/CommandTable.h"

#include <algorithm>
#include <array>

#include "text/Text.h"

namespace tessel::check {
namespace {

/// What stands in brackets and is not one parameter.
struct Meaning {
  std::string_view brackets;
  ParameterCount count;
};
constexpr ParameterCount kNone = {0, 0};
constexpr ParameterCount kAnyNumber = {0, ParameterCount::kAny};
constexpr std::array<Meaning, 7> kMeanings = {{{"no parameters", kNone},
                                               {"move flag", kNone},
                                               {"condition for ifp", kNone},
                                               {"command or block", kNone},
                                               {"commands", kNone},
                                               {"move flags", kAnyNumber},
                                               {"conditions of the player", kAnyNumber}}};

ParameterCount CountOf(std::string_view brackets) {
  const auto* const found = std::ranges::find_if(kMeanings, [&](const Meaning& meaning) {
    return EqualIgnoringAsciiCase(meaning.brackets, brackets);
  });
  if (found != kMeanings.end()) return found->count;
  return brackets.ends_with("...") ? kAnyNumber : ParameterCount{1, 1};
}

}  // namespace

ParameterCount ParametersOf(std::string_view parameterText) {
  ParameterCount all;
  for (auto open = parameterText.find('['); open != parameterText.npos;
       open = parameterText.find('[', open + 1)) {
    const auto close = parameterText.find(']', open);
    if (close == parameterText.npos) return {all.least, ParameterCount::kAny};
    const ParameterCount one = CountOf(parameterText.substr(open + 1, close - open - 1));
    all.least += one.least;
    all.most = one.most == ParameterCount::kAny || all.most == ParameterCount::kAny
                   ? ParameterCount::kAny
                   : all.most + one.most;
  }
  return all;
}

CommandTable::CommandTable(std::span<const ScriptWord> words) : table_(words.size()) {
  commands_.reserve(words.size());
  for (const ScriptWord& word : words) {
    const bool tells = word.parameters.find('[') != std::string::npos;
    const NamedPlace place = {word.word, 0, static_cast<std::uint32_t>(commands_.size())};
    if (table_.Add(place) != nullptr) continue;
    // A word without any parameter text says nothing about its parameters.
    commands_.push_back({word.word, tells ? ParametersOf(word.parameters) : kAnyNumber});
    longest_ = std::max(longest_, word.word.size());
  }
}

}  // namespace tessel::check
