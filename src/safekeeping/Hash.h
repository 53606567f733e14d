// A number for a text, for ever the same: against accidents, not against attacks.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace tessel {

inline constexpr std::uint64_t kHashOfNothing = 14695981039346656037U;

/// FNV-1a, going on from the hash of what stands before.
inline std::uint64_t HashOf(std::string_view bytes, std::uint64_t before = kHashOfNothing) {
  constexpr std::uint64_t kPrime = 1099511628211U;
  for (const char c : bytes) before = (before ^ static_cast<unsigned char>(c)) * kPrime;
  return before;
}

/// The same over words of eight bytes, in an eighth of the steps: for whole files. Another number
/// than HashOf's.
inline std::uint64_t ContentHash(std::string_view bytes) {
  constexpr std::uint64_t kPrime = 1099511628211U;
  std::uint64_t hash = kHashOfNothing ^ bytes.size();
  while (bytes.size() >= sizeof hash) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), sizeof word);
    hash = (hash ^ word) * kPrime;
    hash ^= hash >> 32;  // the upper bytes of a word count for the lower ones, too
    bytes.remove_prefix(sizeof word);
  }
  return HashOf(bytes, hash);
}

}  // namespace tessel
