#include "text/AnchorScan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "text/Text.h"

#if defined(__x86_64__) && defined(__GNUC__)
#define TESSEL_SCAN_X86 1
#include <immintrin.h>
#endif

namespace tessel {
namespace {

// Bytes of a script, the most common first; all others are rarer.
constexpr std::string_view kCommonBytes = " etoasnridl0cfupm1g2hyb5w34_k./689v-";
constexpr std::size_t kAnchorReach = 64;

constexpr std::array<unsigned char, 256> MakeRarity() {
  std::array<unsigned char, 256> rarity{};
  rarity.fill(static_cast<unsigned char>(kCommonBytes.size()));
  for (std::size_t i = 0; i < kCommonBytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(kCommonBytes[i]);
    rarity[byte] = static_cast<unsigned char>(i);
    if (byte >= 'a' && byte <= 'z') rarity[byte - 'a' + 'A'] = static_cast<unsigned char>(i);
  }
  return rarity;
}

constexpr std::array<unsigned char, 256> kRarity = MakeRarity();

Anchor MakeAnchor(std::string_view wanted, std::size_t offset, bool matchCase) {
  const auto byte = static_cast<unsigned char>(wanted[offset]);
  const unsigned char lower = ToLowerByte(byte);
  const unsigned char upper = ToUpperByte(byte);
  const auto at = static_cast<Position>(offset);
  if (matchCase) return {at, 0, byte};
  return {at, static_cast<unsigned char>(lower ^ upper), static_cast<unsigned char>(lower | upper)};
}

bool Holds(const Anchor& anchor, const char* place) {
  return (static_cast<unsigned char>(place[anchor.offset]) | anchor.caseBits) == anchor.value;
}

Position ScanPlain(const char* text, Position from, Position last, const Anchors& anchors) {
  Position at = from;
  while (at <= last && !(Holds(anchors.first, text + at) && Holds(anchors.second, text + at))) ++at;
  return at;
}

#ifdef TESSEL_SCAN_X86

// Both vector loops work alike: four blocks at a time, then block by block, and at the end one
// block that overlaps those before. A search with many hits begins here again behind each of them:
// the first match of four blocks is found without looking at them again.

inline __m128i Broadcast16(unsigned char byte) { return _mm_set1_epi8(static_cast<char>(byte)); }

inline __m128i Load16(const char* at) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

inline std::uint64_t Places16(__m128i match) {
  return static_cast<unsigned>(_mm_movemask_epi8(match));
}

struct Lanes16 {
  explicit Lanes16(const Anchors& anchors)
      : firstOffset(anchors.first.offset),
        secondOffset(anchors.second.offset),
        firstCase(Broadcast16(anchors.first.caseBits)),
        firstValue(Broadcast16(anchors.first.value)),
        secondCase(Broadcast16(anchors.second.caseBits)),
        secondValue(Broadcast16(anchors.second.value)) {}

  __m128i Match(const char* at) const {
    const __m128i first =
        _mm_cmpeq_epi8(_mm_or_si128(Load16(at + firstOffset), firstCase), firstValue);
    const __m128i second =
        _mm_cmpeq_epi8(_mm_or_si128(Load16(at + secondOffset), secondCase), secondValue);
    return _mm_and_si128(first, second);
  }

  Position firstOffset, secondOffset;
  __m128i firstCase, firstValue, secondCase, secondValue;
};

Position ScanSse2(const char* text, Position from, Position last, const Anchors& anchors) {
  constexpr Position kBlock = 16;
  if (last - from + 1 < kBlock) return ScanPlain(text, from, last, anchors);
  const Lanes16 lanes(anchors);
  Position at = from;
  for (; at + 4 * kBlock - 1 <= last; at += 4 * kBlock) {
    const char* block = text + at;
    const __m128i m0 = lanes.Match(block);
    const __m128i m1 = lanes.Match(block + kBlock);
    const __m128i m2 = lanes.Match(block + 2 * kBlock);
    const __m128i m3 = lanes.Match(block + 3 * kBlock);
    const __m128i any = _mm_or_si128(_mm_or_si128(m0, m1), _mm_or_si128(m2, m3));
    if (_mm_movemask_epi8(any) != 0) {
      return at + std::countr_zero(Places16(m0) | Places16(m1) << 16 | Places16(m2) << 32 |
                                   Places16(m3) << 48);
    }
  }
  for (; at + kBlock - 1 <= last; at += kBlock) {
    if (const auto places = Places16(lanes.Match(text + at))) return at + std::countr_zero(places);
  }
  if (at > last) return last + 1;
  const Position lastBlock = last - kBlock + 1;
  const auto places = Places16(lanes.Match(text + lastBlock)) >> (at - lastBlock);
  return places == 0 ? last + 1 : at + std::countr_zero(places);
}

#define TESSEL_AVX2 __attribute__((target("avx2")))

TESSEL_AVX2 inline __m256i Broadcast32(unsigned char byte) {
  return _mm256_set1_epi8(static_cast<char>(byte));
}

TESSEL_AVX2 inline __m256i Load32(const char* at) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
}

TESSEL_AVX2 inline std::uint64_t Places32(__m256i match) {
  return static_cast<unsigned>(_mm256_movemask_epi8(match));
}

struct Lanes32 {
  TESSEL_AVX2 explicit Lanes32(const Anchors& anchors)
      : firstOffset(anchors.first.offset),
        secondOffset(anchors.second.offset),
        firstCase(Broadcast32(anchors.first.caseBits)),
        firstValue(Broadcast32(anchors.first.value)),
        secondCase(Broadcast32(anchors.second.caseBits)),
        secondValue(Broadcast32(anchors.second.value)) {}

  TESSEL_AVX2 __m256i Match(const char* at) const {
    const __m256i first =
        _mm256_cmpeq_epi8(_mm256_or_si256(Load32(at + firstOffset), firstCase), firstValue);
    const __m256i second =
        _mm256_cmpeq_epi8(_mm256_or_si256(Load32(at + secondOffset), secondCase), secondValue);
    return _mm256_and_si256(first, second);
  }

  Position firstOffset, secondOffset;
  __m256i firstCase, firstValue, secondCase, secondValue;
};

TESSEL_AVX2 Position ScanAvx2(const char* text, Position from, Position last,
                              const Anchors& anchors) {
  constexpr Position kBlock = 32;
  if (last - from + 1 < kBlock) return ScanSse2(text, from, last, anchors);
  const Lanes32 lanes(anchors);
  Position at = from;
  for (; at + 4 * kBlock - 1 <= last; at += 4 * kBlock) {
    const char* block = text + at;
    const __m256i m0 = lanes.Match(block);
    const __m256i m1 = lanes.Match(block + kBlock);
    const __m256i m2 = lanes.Match(block + 2 * kBlock);
    const __m256i m3 = lanes.Match(block + 3 * kBlock);
    const __m256i any = _mm256_or_si256(_mm256_or_si256(m0, m1), _mm256_or_si256(m2, m3));
    if (_mm256_movemask_epi8(any) != 0) {
      const std::uint64_t low = Places32(m0) | Places32(m1) << 32;
      const std::uint64_t high = Places32(m2) | Places32(m3) << 32;
      return at + (low != 0 ? std::countr_zero(low) : 64 + std::countr_zero(high));
    }
  }
  for (; at + kBlock - 1 <= last; at += kBlock) {
    if (const auto places = Places32(lanes.Match(text + at))) return at + std::countr_zero(places);
  }
  if (at > last) return last + 1;
  const Position lastBlock = last - kBlock + 1;
  const auto places = Places32(lanes.Match(text + lastBlock)) >> (at - lastBlock);
  return places == 0 ? last + 1 : at + std::countr_zero(places);
}

#endif

std::vector<ScanVariant> FindVariants() {
  std::vector<ScanVariant> variants = {{"plain", ScanPlain}};
#ifdef TESSEL_SCAN_X86
  variants.push_back({"SSE2", ScanSse2});
  if (__builtin_cpu_supports("avx2")) variants.push_back({"AVX2", ScanAvx2});
#endif
  return variants;
}

}  // namespace

Anchors::Anchors(std::string_view wanted, bool matchCase) {
  std::size_t rarest = 0;
  std::size_t nextRarest = 0;
  int rarity = -1;
  int nextRarity = -1;
  for (std::size_t i = 0; i < std::min(wanted.size(), kAnchorReach); ++i) {
    const int here = kRarity[static_cast<unsigned char>(wanted[i])];
    if (here > rarity) {
      nextRarest = rarity < 0 ? i : rarest;
      nextRarity = rarity;
      rarest = i;
      rarity = here;
    } else if (here > nextRarity) {
      nextRarest = i;
      nextRarity = here;
    }
  }
  first = MakeAnchor(wanted, rarest, matchCase);
  second = MakeAnchor(wanted, nextRarest, matchCase);
}

std::span<const ScanVariant> ScanVariants() {
  static const std::vector<ScanVariant> variants = FindVariants();
  return variants;
}

ScanFunction FastestScan() { return ScanVariants().back().scan; }

}  // namespace tessel
