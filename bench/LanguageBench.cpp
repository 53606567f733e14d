// Reading what a script says: whole, after an edit, and when it is asked.
#include "ConText.h"
#include "Measure.h"
#include "language/Blocks.h"
#include "language/Definitions.h"
#include "language/Levels.h"
#include "language/Names.h"
#include "language/Script.h"

namespace tessel::bench {
namespace {

using MakeText = const std::string& (*)(std::size_t);

const std::string& ScriptText(MakeText make, const benchmark::State& state) {
  return make(static_cast<std::size_t>(state.range(0)));
}

constexpr auto kNoPreparation = [] {};

void ReadScript(benchmark::State& state, MakeText make) {
  const std::string& text = ScriptText(make, state);
  Position lines = 0;
  Measure(state, text, kNoPreparation, [&] { lines = language::Script(text).LineCount(); });
  state.counters["lines"] = static_cast<double>(lines);
}

/// Writes two bytes at a place, told as a part of the text, and takes them away again: two edits.
void EditScript(benchmark::State& state, double part, std::string_view written) {
  std::string text = UserFile(static_cast<std::size_t>(state.range(0)));
  const auto at =
      std::min(text.size() - 1, static_cast<std::size_t>(part * static_cast<double>(text.size())));
  language::Script script(text);
  const std::string after = std::string(text).insert(at, written);
  const auto offset = static_cast<Position>(at);
  double worst = 0;
  Measure(state, text, kNoPreparation, [&] {
    const auto edit = [&](std::string_view now, Position removed, Position inserted) {
      worst = std::max(worst, SecondsOf([&] { script.Update(now, offset, removed, inserted); }));
    };
    edit(after, 0, std::ssize(written));
    edit(text, std::ssize(written), 0);
  });
  state.counters["worst_ms"] = 1000 * worst;
}

/// `ask` gives how many there are.
template <class Ask>
void AskScript(benchmark::State& state, MakeText make, Ask ask) {
  const std::string& text = ScriptText(make, state);
  const language::Script script(text);
  std::size_t count = 0;
  Measure(state, text, kNoPreparation, [&] { count = ask(script); });
  state.counters["found"] = static_cast<double>(count);
}

constexpr auto kDefinitions = [](const language::Script& script) {
  return language::Definitions(script).size();
};
constexpr auto kLevels = [](const language::Script& script) {
  return language::Levels(script).size();
};
constexpr auto kBlocks = [](const language::Script& script) {
  return language::Blocks(script).blocks.size();
};
constexpr auto kSymbols = [](const language::Script& script) {
  return language::Symbols(script).size();
};
constexpr auto kUsesOfAName = [](const language::Script& script) {
  return language::UsesOf(script, "MAXTRIPBOMBAMMO").size();
};
constexpr auto kUsesOfACommand = [](const language::Script& script) {
  return language::UsesOf(script, "cactor").size();
};

BENCHMARK_CAPTURE(ReadScript, UserFile, UserFile)->Apply(AllSizes);
BENCHMARK_CAPTURE(ReadScript, GameFile, GameFile)->Apply(AllSizes);
BENCHMARK_CAPTURE(EditScript, AtItsStart, 0.0, "xy")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(EditScript, InItsMiddle, 0.5, "xy")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(EditScript, AtItsEnd, 1.0, "xy")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(EditScript, OpeningACommentAtItsStart, 0.0, "/*")->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, Definitions, UserFile, kDefinitions)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, Levels, UserFile, kLevels)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, UsesOfAName, UserFile, kUsesOfAName)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, UsesOfACommand, GameFile, kUsesOfACommand)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, SymbolsOfAUserFile, UserFile, kSymbols)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, SymbolsOfAGameFile, GameFile, kSymbols)->Apply(SizesUpTo10MB);
BENCHMARK_CAPTURE(AskScript, Blocks, GameFile, kBlocks)->Apply(SizesUpTo10MB);

}  // namespace
}  // namespace tessel::bench
