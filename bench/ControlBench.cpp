// Searching, colouring and converting without a window.
#include "ConText.h"
#include "Control.h"
#include "Measure.h"

namespace tessel::bench {
namespace {

constexpr auto kNothing = [] {};

using MakeText = const std::string& (*)(std::size_t);

const std::string& TextFor(MakeText make, const benchmark::State& state) {
  return make(static_cast<std::size_t>(state.range(0)));
}

void FindWithoutHit(benchmark::State& state) {
  const std::string& text = TextFor(UserFile, state);
  Control control;
  control.Load(text);
  Position found = 0;
  Measure(state, text, kNothing, [&] {
    found = control.Editor().Find("useractor", 0, std::nullopt, kFindWholeWord);
    benchmark::DoNotOptimize(found);
  });
  if (found != kNotFound) state.SkipWithError("the word stands in the text");
}

void FindEveryDefine(benchmark::State& state) {
  const std::string& text = TextFor(UserFile, state);
  Control control;
  control.Load(text);
  double hits = 0;
  Measure(state, text, kNothing, [&] {
    hits = 0;
    Position at = control.Editor().Find("define", 0, std::nullopt, kFindWholeWord);
    for (; at != kNotFound; ++hits) {
      at = control.Editor().Find("define", at + 1, std::nullopt, kFindWholeWord);
    }
  });
  state.counters["hits"] = hits;
}

void Colour(benchmark::State& state, MakeText make) {
  const std::string& text = TextFor(make, state);
  Control control;
  Measure(
      state, text, [&] { control.Load(text); }, [&] { control.PressColorize(); });
}

void ResetToBlack(benchmark::State& state) {
  const std::string& text = TextFor(UserFile, state);
  Control control;
  control.Load(text);
  Measure(
      state, text,
      [&] {
        control.Editor().SetTag("");
        control.PressColorize();
      },
      [&] { control.PressColorize(); });
}

void Convert(benchmark::State& state) {
  const std::string& text = TextFor(UserFile, state);
  Control control;
  Measure(
      state, text, [&] { control.Load(text); }, [&] { control.control.Convert(); });
  if (!control.services.messages.shown.empty()) state.SkipWithError("the conversion was refused");
}

BENCHMARK(FindWithoutHit)->Apply(AllSizes);
BENCHMARK(FindEveryDefine)->Apply(AllSizes);
BENCHMARK_CAPTURE(Colour, UserFile, UserFile)->Apply(AllSizes);
BENCHMARK_CAPTURE(Colour, GameFile, GameFile)->Apply(AllSizes);
BENCHMARK(ResetToBlack)->Apply(FewOfAllSizes);
BENCHMARK(Convert)->Apply(SizesOfConversions);

}  // namespace
}  // namespace tessel::bench
