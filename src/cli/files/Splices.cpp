#include "cli/files/Splices.h"

#include <algorithm>

#include "language/Reader.h"

namespace tessel::cli {
namespace {

using language::Range;
using language::Token;
using language::TokenKind;

Token FirstTokenBehind(std::string_view text, Range range) {
  language::Reader reader(text, range.begin, std::ssize(text));
  Token token = reader.Next();
  while (token.kind != TokenKind::kEnd && token.range.begin < range.end) token = reader.Next();
  return token;
}

}  // namespace

std::string Spliced(std::string_view text, std::vector<Splice> splices) {
  std::ranges::sort(splices, {}, [](const Splice& splice) { return splice.range.begin; });
  std::size_t inserted = 0;
  for (const Splice& splice : splices) inserted += splice.text.size();
  std::string result;
  result.reserve(text.size() + inserted);
  Position from = 0;
  for (const Splice& splice : splices) {
    result += language::Slice(text, {from, splice.range.begin});
    result += splice.text;
    from = splice.range.end;
  }
  result += language::Slice(text, {from, std::ssize(text)});
  return result;
}

bool LeavesTheRest(std::string_view text, const Splice& splice) {
  constexpr Position kTellsKind = 2;  // bytes of a token
  const Range old = splice.range;
  const Token behind = FirstTokenBehind(text, old);
  const Position end = std::min(behind.range.begin + kTellsKind, std::ssize(text));
  const std::string changed = splice.text + std::string(language::Slice(text, {old.end, end}));
  const Position length = std::ssize(splice.text);
  const Token now = FirstTokenBehind(changed, {0, length});
  return now.kind == behind.kind && now.range.begin == length + behind.range.begin - old.end;
}

}  // namespace tessel::cli
