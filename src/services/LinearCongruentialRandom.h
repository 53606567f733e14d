// The platform's random numbers.
#pragma once

#include <cstdint>

#include "services/Services.h"

namespace tessel {

/// The 24-bit linear congruential generator: x ← (x · 1140671485 + 12820163) mod 2²⁴, value x / 2²⁴
/// in single precision. The same start always gives the same numbers.
class LinearCongruentialRandom : public RandomNumbers {
 public:
  /// Where the generator stands when a host starts.
  static constexpr std::uint32_t kStart = 327680;

  explicit LinearCongruentialRandom(std::uint32_t start = kStart) : x_(start) {}

  float Next() override;

 private:
  std::uint32_t x_;
};

}  // namespace tessel
