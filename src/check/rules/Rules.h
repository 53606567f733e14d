// All rules.
#pragma once

#include <span>
#include <string_view>

#include "check/facts/Rule.h"

namespace tessel::check {

/// In the order in which they are listed.
std::span<const Rule* const> AllRules();

/// Null where there is none of that name.
const Rule* RuleNamed(std::string_view id);

extern const Rule kOpenComment;
extern const Rule kStrayCommentEnd;
extern const Rule kOpenState;
extern const Rule kOpenActor;
extern const Rule kOpenBrace;
extern const Rule kStrayCloser;
extern const Rule kDoubledDefine;
extern const Rule kDefineWithoutValue;
extern const Rule kDefineWithMore;
extern const Rule kPanelValue;
extern const Rule kPanelMissing;
extern const Rule kPanelElsewhere;
extern const Rule kLevelFields;
extern const Rule kLevelTime;
extern const Rule kLevelDoubled;
extern const Rule kLevelOrder;
extern const Rule kLevelBlanks;
extern const Rule kLevelMapLength;
extern const Rule kTextNumber;
extern const Rule kTextDoubled;
extern const Rule kTextLength;
extern const Rule kSoundFields;
extern const Rule kSoundDoubled;
extern const Rule kSoundSlot;
extern const Rule kUnknownWord;
extern const Rule kParameterCount;
extern const Rule kUndefinedName;
extern const Rule kIncludeNotGiven;
extern const Rule kConversionStep;
extern const Rule kConversionStops;
extern const Rule kRandomizerStops;
extern const Rule kControlCharacter;
extern const Rule kMixedLineEnds;
extern const Rule kUnknownRule;

}  // namespace tessel::check
