// Memory that is refused to this program.
#pragma once

namespace tessel::test {

/// The sanitizers have a memory of their own.
#ifdef TESSEL_SANITIZED
inline constexpr bool kMemoryCanBeRefused = false;
#else
inline constexpr bool kMemoryCanBeRefused = true;
#endif

/// The allocation of that number from now on, counted from 1, gets nothing; later ones do.
void RefuseMemoryOnce(long allocation);
/// It and all later ones get nothing.
void RefuseMemoryFrom(long allocation);
/// Whether it came to that. There is memory for all from here on.
bool MemoryWasRefused();

}  // namespace tessel::test
