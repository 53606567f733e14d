// A number for a text, the same on every machine: against accidents, not against attacks.
#pragma once

#include <cstdint>
#include <string_view>

namespace tessel {

inline constexpr std::uint64_t kHashOfNothing = 14695981039346656037U;

/// FNV-1a, going on from the hash of what stands before.
inline std::uint64_t HashOf(std::string_view bytes, std::uint64_t before = kHashOfNothing) {
  constexpr std::uint64_t kPrime = 1099511628211U;
  for (const char c : bytes) before = (before ^ static_cast<unsigned char>(c)) * kPrime;
  return before;
}

}  // namespace tessel
