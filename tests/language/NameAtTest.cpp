#include <gtest/gtest.h>

#include <string>

#include "language/NameAt.h"

namespace tessel::language {
namespace {

/// The text with "|" where the caret is, and what is found there in brackets.
template <class Find>
std::string Marked(std::string text, Find find) {
  const auto caret = text.find('|');
  text.erase(caret, 1);
  const auto found = find(Script(text), static_cast<Position>(caret));
  if (!found) return "nothing";
  text.insert(static_cast<std::size_t>(found->end), "]");
  return text.insert(static_cast<std::size_t>(found->begin), "[");
}
std::string NameIn(const std::string& text) { return Marked(text, NameAt); }
std::string TypedIn(const std::string& text) { return Marked(text, TypedAt); }

TEST(NameAt, IsTheWordAtTheCaret) {
  EXPECT_EQ(NameIn("state bl|eed ends"), "state [bleed] ends");
  EXPECT_EQ(NameIn("state bleed| ends"), "state [bleed] ends");
}

TEST(NameAt, IsNoKeywordNoBraceAndNothingInAComment) {
  EXPECT_EQ(NameIn("st|ate bleed ends"), "nothing");
  EXPECT_EQ(NameIn("{| }"), "nothing");
  EXPECT_EQ(NameIn("// bl|eed"), "nothing");
}

TEST(TypedAt, IsWhatStandsInFrontOfTheCaret) {
  EXPECT_EQ(TypedIn("state bl|eed"), "state [bl]eed");
  EXPECT_EQ(TypedIn("state |bleed"), "state []bleed");
  EXPECT_EQ(TypedIn("{|"), "{[]");
  EXPECT_EQ(TypedIn("// bl|"), "nothing");
}

TEST(KindOfName, IsThatOfTheStatementThatUsesIt) {
  const std::string text = "actor A 1 state bleed ends enda spawn bleed";
  const Script script(text);
  const auto first = static_cast<Position>(text.find("bleed"));
  const auto last = static_cast<Position>(text.rfind("bleed"));
  EXPECT_EQ(KindOfName(script, {first, first + 5}), Keyword::kState);
  EXPECT_EQ(KindOfName(script, {last, last + 5}), std::nullopt);
}

TEST(KeepThoseOfKind, KeepsAllWhereNoneHasTheKind) {
  const auto keywordOf = [](Keyword keyword) { return keyword; };
  std::vector<Keyword> found = {Keyword::kState, Keyword::kAction};
  KeepThoseOfKind(found, Keyword::kMove, keywordOf);
  EXPECT_EQ(found.size(), 2U);
  KeepThoseOfKind(found, std::nullopt, keywordOf);
  EXPECT_EQ(found.size(), 2U);
  KeepThoseOfKind(found, Keyword::kAction, keywordOf);
  EXPECT_EQ(found, std::vector{Keyword::kAction});
}

}  // namespace
}  // namespace tessel::language
