// What the colouring pass colours, in which order.
#pragma once

#include <iterator>
#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

inline constexpr Colour kKeywordRed = 0x0000C8;
inline constexpr Colour kCommentGreen = 0x008000;
inline constexpr Colour kLevelNameBlue = 0xC00000;

/// How the occurrences of a word are treated.
enum class ColourRule {
  kIfBlack,  ///< coloured where it is still black
  kComment,  ///< starts a comment, which is coloured whatever it was
  kMusic,    ///< coloured under the music test
};

/// What an entry decides about the rest of the pass.
enum class Steering {
  kNone,
  kNeededForDefinitions,  ///< a text without the word goes on with the script words at once
  kEndsPass,              ///< a text with the word gets no script words
};

struct ColorWord {
  std::string_view word;
  Colour colour;
  ColourRule rule = ColourRule::kIfBlack;
  Steering steering = Steering::kNone;
};

/// The words of the pass. The order counts: later entries only colour what earlier ones left black.
inline constexpr ColorWord kColorWords[] = {
    {"gamestartup", kKeywordRed},
    {"/", kCommentGreen, ColourRule::kComment},
    {"define", kKeywordRed},
    {"definequote", kKeywordRed, ColourRule::kIfBlack, Steering::kNeededForDefinitions},
    {"definevolumename", kKeywordRed},
    {"defineskillname", kKeywordRed},
    {"definelevelname", kLevelNameBlue},
    {"music", kKeywordRed, ColourRule::kMusic},
    {"definesound", kKeywordRed, ColourRule::kIfBlack, Steering::kEndsPass},
    {"action", kKeywordRed},
    {"actor", kKeywordRed},
    {"ai", kKeywordRed},
    {"enda", kKeywordRed},
    {"ends", kKeywordRed},
    {"move", kKeywordRed},
    {"state", kKeywordRed},
    {"useractor", kKeywordRed},
};

/// The 0-based entry with which the script words begin.
inline constexpr int kFirstScriptWord = 9;
static_assert(kColorWords[kFirstScriptWord].word == "action");

/// The entry that comes after this one, given whether its word occurs in the text; the number of
/// entries where the pass ends.
constexpr int EntryAfter(int entry, bool occurs) {
  const Steering steering = kColorWords[entry].steering;
  if (occurs && steering == Steering::kEndsPass) return std::ssize(kColorWords);
  if (!occurs && steering == Steering::kNeededForDefinitions) return kFirstScriptWord;
  return entry + 1;
}

}  // namespace tessel
