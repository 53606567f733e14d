// How every figure is taken: the work alone, beside a memcpy of the same text in the same run.
#pragma once

#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

namespace tessel::bench {

/// Time of this thread on its core: other programs on the machine do not count.
template <class Work>
double SecondsOf(Work work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  };
  const double start = now();
  work();
  return now() - start;
}

/// The best of several copies of a text of this size, taken once in a run.
inline double MemcpySeconds(std::string_view text) {
  static std::map<std::size_t, double> known;
  const auto [it, isNew] = known.try_emplace(text.size(), 1e9);
  if (!isNew) return it->second;
  std::string target(text.size(), '\0');
  const int repeats = text.size() < 10'000'000 ? 500 : 20;
  for (int i = 0; i < repeats; ++i) {
    it->second = std::min(it->second, SecondsOf([&] {
                            std::memcpy(target.data(), text.data(), text.size());
                            benchmark::DoNotOptimize(target.data());
                            benchmark::ClobberMemory();
                          }));
  }
  return it->second;
}

/// Runs `prepare` unmeasured and `work` measured, again and again. Reports bytes per second and how
/// many copies of the text could have been made instead.
template <class Prepare, class Work>
void Measure(benchmark::State& state, std::string_view text, Prepare prepare, Work work) {
  double seconds = 0;
  for ([[maybe_unused]] auto iteration : state) {
    prepare();
    const double once = SecondsOf(work);
    state.SetIterationTime(once);
    seconds += once;
  }
  const auto iterations = static_cast<double>(state.iterations());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
  state.counters["memcpys"] = seconds / iterations / MemcpySeconds(text);
}

inline void SizesUpTo10MB(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(60'000)->Arg(1'000'000)->Arg(10'000'000)->UseManualTime();
}

inline void AllSizes(benchmark::internal::Benchmark* benchmark) {
  SizesUpTo10MB(benchmark);
  benchmark->Arg(100'000'000);
}

/// For work whose preparation takes much longer than itself.
inline void FewOfAllSizes(benchmark::internal::Benchmark* benchmark) {
  AllSizes(benchmark);
  benchmark->Iterations(5);
}

inline void SizesOfConversions(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(60'000)->Arg(10'000'000)->UseManualTime();
}

}  // namespace tessel::bench
