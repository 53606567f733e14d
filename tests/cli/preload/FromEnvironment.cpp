// Loaded in front of the standard library: memory that ends at the Nth asking, N being
// FAILING_NEW_AT, for once or, with FAILING_NEW_FOREVER, for good.
#include <cstdlib>

#include "support/RefusedMemory.h"

namespace tessel::test {
namespace {

[[gnu::constructor]] void RefuseAsAsked() {
  const char* const at = std::getenv("FAILING_NEW_AT");
  if (at == nullptr) return;
  const auto refuse =
      std::getenv("FAILING_NEW_FOREVER") == nullptr ? RefuseMemoryOnce : RefuseMemoryFrom;
  refuse(std::atol(at));
}

}  // namespace
}  // namespace tessel::test
