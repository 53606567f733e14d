// The colours of a text, kept up while it is edited.
#include <malloc.h>

#include "ConText.h"
#include "Measure.h"
#include "colouring/LiveColours.h"

namespace tessel::bench {
namespace {

using MakeText = const std::string& (*)(std::size_t);

constexpr Position kPage = 4000;

void LiveColours_Whole(benchmark::State& state, MakeText make) {
  const std::string& text = make(static_cast<std::size_t>(state.range(0)));
  Measure(
      state, text, [] {}, [&] { benchmark::DoNotOptimize(LiveColours(text)); });
  const std::size_t before = mallinfo2().uordblks;
  const LiveColours kept(text);
  state.counters["kept_bytes"] = static_cast<double>(mallinfo2().uordblks - before);
}

/// A key until the colours of a page are known, and its undoing.
void LiveColours_Key(benchmark::State& state, double part, std::string_view written) {
  const std::string& text = UserFile(static_cast<std::size_t>(state.range(0)));
  const auto at = static_cast<std::size_t>(part * static_cast<double>(text.size()));
  const std::string after = std::string(text).insert(at, written);
  const auto offset = static_cast<Position>(at);
  LiveColours live(text);
  double worst = 0;
  const auto key = [&](const std::string& now, Position removed, Position inserted) {
    worst = std::max(worst, SecondsOf([&] {
                       const Position from = live.Update(now, offset, removed, inserted);
                       const Position end = std::min(from + kPage, std::ssize(now));
                       benchmark::DoNotOptimize(live.ColoursOf(now, from, end));
                     }));
  };
  Measure(
      state, text, [] {},
      [&] {
        key(after, 0, std::ssize(written));
        key(text, std::ssize(written), 0);
      });
  state.counters["worst_ms"] = 1000 * worst;
}

BENCHMARK_CAPTURE(LiveColours_Whole, UserFile, UserFile)->Apply(AllSizes);
BENCHMARK_CAPTURE(LiveColours_Whole, GameFile, GameFile)->Apply(AllSizes);
BENCHMARK_CAPTURE(LiveColours_Key, AtTheStart, 0.0, "x")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(LiveColours_Key, InTheMiddle, 0.5, "x")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(LiveColours_Key, AtTheEnd, 1.0, "x")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(LiveColours_Key, OpeningACommentAtTheStart, 0.0, "/*")->Apply(SizesUpTo10MB);

}  // namespace
}  // namespace tessel::bench
