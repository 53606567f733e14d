// What several rules need.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "check/facts/Rule.h"

namespace tessel::check {

/// A name or a word as a message shows it, in quotes; long ones are cut.
std::string Quoted(std::string_view bytes);

/// Takes the statement out; with its line where nothing else but a comment stands there.
Fix TakeOut(const FileFacts& file, const Statement& statement);

/// Adds a finding for a statement that says again what an earlier one has said. There is a fix
/// where both are the same.
void AddDoubled(const Mod& mod, const PlacedStatement& first, const PlacedStatement& again,
                const std::string& what, Findings& findings);

/// What makes a statement one of several that may not be the same; nothing: it may.
using NumberKey = std::optional<std::int64_t> (*)(const FileFacts& file,
                                                  const Statement& statement);
/// Tells all statements of the keyword whose key an earlier one has, in any file. `what` stands in
/// front of the statement's words that make the key, such as "quote".
void FindDoubledNumbers(const Mod& mod, language::Keyword keyword, NumberKey keyOf,
                        std::string_view what, std::size_t keyWords, Findings& findings);
/// The same for names, but for statements that say just what the first does.
void FindDoubledNames(const Mod& mod, language::Keyword keyword, std::string_view what,
                      Findings& findings);

/// A number from 0 up.
std::optional<std::int32_t> CountingNumber(std::string_view word);

/// From the first word of the statement to the last, from that word on.
language::Range WordsFrom(const FileFacts& file, const Statement& statement, std::size_t index);

/// Blocks of these kinds that nothing closes, at their openers.
void FindOpenBlocks(const Mod& mod, std::initializer_list<language::Keyword> openers,
                    std::string_view text, Findings& findings);

/// The quotes and titles, each with the most bytes that it may have.
struct TextLimit {
  language::Keyword keyword;
  std::string_view what;
  std::int64_t most;
};
inline constexpr std::array<TextLimit, 3> kTextLimits = {
    {{language::Keyword::kDefineQuote, "quote", 64},
     {language::Keyword::kDefineVolumeName, "title of episode", 32},
     {language::Keyword::kDefineSkillName, "title of skill", 32}}};

}  // namespace tessel::check
