// Loaded in front of the standard library: memory that ends at the Nth asking, N being
// FAILING_NEW_AT, for once or, with FAILING_NEW_FOREVER, for good.
#include <cstdlib>
#include <new>

namespace {

bool Refused() {
  static long count = 0;
  const char* const at = std::getenv("FAILING_NEW_AT");
  if (at == nullptr) return false;
  const long first = std::atol(at);
  ++count;
  return count == first || (count > first && std::getenv("FAILING_NEW_FOREVER") != nullptr);
}

}  // namespace

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
