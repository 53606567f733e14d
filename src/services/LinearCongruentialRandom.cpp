#include "services/LinearCongruentialRandom.h"

namespace tessel {
namespace {

constexpr std::uint32_t kModulus = 1U << 24U;

}  // namespace

float LinearCongruentialRandom::Next() {
  // 2²⁴ divides 2³², so that unsigned overflow does no harm.
  x_ = (x_ * 1140671485U + 12820163U) % kModulus;
  return static_cast<float>(x_) / static_cast<float>(kModulus);
}

}  // namespace tessel
