#include "support/RefusedMemory.h"

#include <cstdlib>
#include <new>

namespace {

/// None while this is 0.
long untilRefused = 0;

}  // namespace

#ifndef TESSEL_SANITIZED

static bool Refused() { return untilRefused > 0 && --untilRefused == 0; }

void* operator new(std::size_t size) {
  if (Refused()) throw std::bad_alloc();
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

#endif

namespace tessel::test {

void RefuseMemoryOnce(long allocation) { untilRefused = allocation; }

bool MemoryWasRefused() {
  const bool refused = untilRefused == 0;
  untilRefused = 0;
  return refused;
}

}  // namespace tessel::test
