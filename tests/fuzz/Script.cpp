// The reading of a script: whole, line by line, and after edits, the same as the naive one. An
// input is how long the chunks are, how long the text is, the text, how many edits there are, and
// for each where it is, how much it takes away, and what it writes.
#include "language/Script.h"

#include <algorithm>
#include <string>

#include "fuzz/Fuzzing.h"
#include "language/Blocks.h"
#include "language/Definitions.h"
#include "language/Entries.h"
#include "language/Levels.h"
#include "language/Names.h"
#include "language/Statement.h"
#include "support/ReadingChecks.h"

namespace tessel::fuzz {
namespace {

using language::Range;
using language::Script;

constexpr std::size_t kLongest = 800;

void RequireNaive(const Script& script) {
  const std::string difference = test::ReadingDifference(script);
  Require(difference.empty(), difference.c_str());
}

/// Whoever asks gets ranges of the text, in its order.
void RequireInOrder(const Script& script, std::initializer_list<Range> ranges) {
  Position at = 0;
  for (const Range range : ranges) {
    Require(at <= range.begin && range.begin <= range.end && range.end <= script.Length(),
            "the fields follow each other in the text");
    at = range.end;
  }
}

void AskForAll(const Script& script) {
  for (const auto mark : script.Marks()) {
    const auto statement = language::ReadStatement(script, mark);
    const Position end = statement.range.end;
    RequireInOrder(script, {statement.keywordRange, statement.name, {end, end}});
    Require(statement.range.begin == mark.begin, "a statement begins with its keyword");
    Require(!script.IsInComment(statement.range.end - 1), "a statement ends with a word");
    const auto found = language::StatementAt(script, statement.range.end - 1);
    Require(found && found->range == statement.range, "a statement is found by its bytes");
  }
  for (const auto& definition : language::Definitions(script)) {
    RequireInOrder(script, {definition.keyword,
                            definition.name,
                            definition.value,
                            definition.rest,
                            {definition.end, definition.end}});
  }
  for (const auto& sound : language::Sounds(script)) {
    RequireInOrder(
        script, {sound.name, sound.file, sound.numbers.front(), sound.numbers.back(), sound.rest});
  }
  for (const auto& level : language::Levels(script)) {
    RequireInOrder(script, {level.keyword,
                            level.episode,
                            level.number,
                            level.map,
                            level.par,
                            level.record,
                            level.title,
                            {level.lineEnd, level.lineEnd}});
  }
}

/// A block ends where or before the one around it does, and with its closer where it has one.
void RequireNested(const Script& script) {
  const language::BlockTree tree = language::Blocks(script);
  std::size_t terminated = 0;
  for (const auto& block : tree.blocks) {
    RequireInOrder(script, {{block.opener.begin, block.opener.begin}, block.range});
    terminated += static_cast<std::size_t>(block.terminated);
    if (!block.parent) continue;
    const Range around = tree.blocks[*block.parent].range;
    Require(around.begin < block.range.begin && block.range.end <= around.end,
            "a block stands in its parent");
  }
  std::size_t closers = 0;
  for (const auto mark : script.Marks()) {
    const std::string_view word = language::GrammarOf(mark.keyword).word;
    closers += static_cast<std::size_t>(word == "ends" || word == "enda" || word == "}");
  }
  Require(closers == terminated + tree.strayClosers.size(), "every closer closes or is stray");
}

void RequireUses(const Script& script) {
  for (const auto& symbol : language::Symbols(script)) {
    RequireInOrder(script, {{symbol.range.begin, symbol.range.begin}, symbol.name, symbol.detail});
  }
  std::size_t asked = 0;
  for (const auto& definition : language::Definitions(script)) {
    if (!definition.HasName() || ++asked > 10) continue;
    const auto uses = language::UsesOf(script, script.Text(definition.name));
    const auto itself = std::ranges::find(uses, definition.name, &language::Use::word);
    Require(itself != uses.end() && itself->kind == language::UseKind::kDefines,
            "a definition is a use of its name");
    for (const auto& use : uses) {
      Require(!script.IsInComment(use.word.begin), "no use stands in a comment");
      Require(language::WordAt(script, use.word.begin) == use.word, "a use is a whole word");
    }
  }
}

void ReadLineByLine(const std::string& text, Position chunkLength) {
  std::string soFar;
  Script script(soFar, chunkLength);
  for (const Range line : test::NaiveLines(text)) {
    const auto behind = static_cast<std::size_t>(line.end) + 1;
    const Position before = std::ssize(soFar);
    soFar = text.substr(0, behind);
    script.Update(soFar, before, 0, std::ssize(soFar) - before);
  }
  RequireNaive(script);
}

void ReadEdited(std::string& text, Position chunkLength, Input& input) {
  Script script(text, chunkLength);
  RequireNaive(script);
  for (unsigned edits = input.Byte() % 8; edits > 0; --edits) {
    test::TextEdit edit;
    edit.offset = static_cast<Position>(input.Number(text.size()));
    edit.removed =
        static_cast<Position>(input.Number(text.size() - static_cast<std::size_t>(edit.offset)));
    edit.inserted = input.Text(input.Byte() % 16);
    edit.ApplyTo(text);
    script.Update(text, edit.offset, edit.removed, std::ssize(edit.inserted));
    RequireNaive(script);
  }
  AskForAll(script);
  RequireNested(script);
  RequireUses(script);
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  Input input(data, size);
  const auto chunkLength = static_cast<Position>(1 + input.Byte() % 64);
  std::string text = input.Text(std::min(input.Number(kLongest), kLongest));
  ReadLineByLine(text, chunkLength);
  ReadEdited(text, chunkLength, input);
  return 0;
}
