#include "support/RefusedMemory.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr long kNever = std::numeric_limits<long>::max();

/// Counts down; the memory of several threads is counted together.
std::atomic<long> untilRefused = kNever;
bool forGood = false;

}  // namespace

#ifndef TESSEL_SANITIZED

static bool Refused() {
  const long left = --untilRefused;
  return left == 0 || (left < 0 && forGood);
}

/// The standard wants the handler called first. One that comes back counts as one that found none.
[[noreturn]] static void NoMemory() {
  if (const std::new_handler handler = std::get_new_handler()) handler();
  throw std::bad_alloc();
}

void* operator new(std::size_t size) {
  if (Refused()) NoMemory();
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  NoMemory();
}
void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

#endif

namespace tessel::test {

void RefuseMemoryOnce(long allocation) {
  forGood = false;
  untilRefused = allocation;
}

void RefuseMemoryFrom(long allocation) {
  forGood = true;
  untilRefused = allocation;
}

bool MemoryWasRefused() {
  forGood = false;
  return untilRefused.exchange(kNever) <= 0;
}

}  // namespace tessel::test
