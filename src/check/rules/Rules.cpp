#include "check/rules/Rules.h"

#include <algorithm>
#include <array>

namespace tessel::check {
namespace {

constexpr std::array<const Rule*, 34> kAllRules = {
    &kOpenComment,    &kStrayCommentEnd, &kOpenState,       &kOpenActor,
    &kOpenBrace,      &kStrayCloser,     &kDoubledDefine,   &kDefineWithoutValue,
    &kDefineWithMore, &kPanelValue,      &kPanelMissing,    &kPanelElsewhere,
    &kLevelFields,    &kLevelTime,       &kLevelDoubled,    &kLevelOrder,
    &kLevelBlanks,    &kLevelMapLength,  &kTextNumber,      &kTextDoubled,
    &kTextLength,     &kSoundFields,     &kSoundDoubled,    &kSoundSlot,
    &kUnknownWord,    &kParameterCount,  &kUndefinedName,   &kIncludeNotGiven,
    &kConversionStep, &kConversionStops, &kRandomizerStops, &kControlCharacter,
    &kMixedLineEnds,  &kUnknownRule};

}  // namespace

std::span<const Rule* const> AllRules() { return kAllRules; }

const Rule* RuleNamed(std::string_view id) {
  const auto* const found =
      std::ranges::find(kAllRules, id, [](const Rule* rule) { return rule->id; });
  return found == kAllRules.end() ? nullptr : *found;
}

}  // namespace tessel::check
