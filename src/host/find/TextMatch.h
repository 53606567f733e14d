// A place where something was found, and how it is looked for.
#pragma once

#include "text/TextTypes.h"

namespace tessel {

/// A stretch of a text, in bytes. It may be empty: "^" finds the beginning of each line.
struct TextMatch {
  Position start = 0;
  Position length = 0;

  Position End() const { return start + length; }
  friend bool operator==(const TextMatch&, const TextMatch&) = default;
};

/// What a person can switch on beside the field.
struct FindChoices {
  bool matchCase = false;
  bool wholeWord = false;
  bool regularExpression = false;

  friend bool operator==(const FindChoices&, const FindChoices&) = default;
};

}  // namespace tessel
