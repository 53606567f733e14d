// The vector part of the text search: finding the places that are worth a closer look.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

/// One byte of the wanted text, in both its cases: (byte | caseBits) == value holds for them, and
/// perhaps for a few bytes more.
struct Anchor {
  Position offset = 0;  ///< where it stands in the wanted text
  unsigned char caseBits = 0;
  unsigned char value = 0;
};

/// The two bytes of a wanted text that are likely to be rarest in a script. A text of one byte has
/// it twice.
struct Anchors {
  Anchors(std::string_view wanted, bool matchCase);

  Anchor first, second;
};

/// The first place in [from, last] at which a match can begin, judged by the anchors alone, or
/// `last` + 1. The text reaches at least to `last` plus the greater offset.
using ScanFunction = Position (*)(const char* text, Position from, Position last,
                                  const Anchors& anchors);

/// A way to scan that this machine can run.
struct ScanVariant {
  const char* name;
  ScanFunction scan;
};

/// All of them, the plain one first and the fastest last. They differ in speed alone.
std::span<const ScanVariant> ScanVariants();

ScanFunction FastestScan();

}  // namespace tessel
