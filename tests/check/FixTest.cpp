// A fix removes what it is for, and nothing else of the text.
#include <gtest/gtest.h>

#include <string>

#include "ModLines.h"
#include "Mods.h"
#include "settings/PanelItems.h"

namespace tessel::test {
namespace {

/// The text with the only fix of its only finding of that rule.
std::string Fixed(const std::string& text, std::string_view rule) {
  const check::Findings findings = CheckOne(text, {.rules = {check::RuleNamed(rule)}});
  EXPECT_EQ(findings.size(), 1U) << Shown(findings);
  if (findings.size() != 1 || !findings.front().fix) return "no fix";
  std::string fixed = text;
  const auto& edits = findings.front().fix->edits;
  for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
    fixed.replace(static_cast<std::size_t>(edit->range.begin),
                  static_cast<std::size_t>(edit->range.Length()), edit->text);
  }
  EXPECT_EQ(Shown(CheckOne(fixed, {.rules = {check::RuleNamed(rule)}})), "");
  return fixed;
}

TEST(Fix, ClosesACommentInFrontOfTheNextStatement) {
  EXPECT_EQ(Fixed("/* the user file\r\n   of mine\r\n\r\ndefine A 1\r\n", "open-comment"),
            "/* the user file\r\n   of mine */\r\n\r\ndefine A 1\r\n");
  EXPECT_EQ(Fixed("define A 1 /* one\r\ndefine B 2\r\n", "open-comment"),
            "define A 1 /* one */\r\ndefine B 2\r\n");
}

TEST(Fix, ClosesACommentAtTheEndOfATextThatSaysNothingMore) {
  EXPECT_EQ(Fixed("define A 1\n/* one\ntwo\n\n", "open-comment"), "define A 1\n/* one\ntwo */\n\n");
  EXPECT_EQ(Fixed("/*", "open-comment"), "/* */");
}

TEST(Fix, TakesTheLineOutThatSaysTheSameAgain) {
  EXPECT_EQ(Fixed("define A 1\ndefine B 2\ndefine a 1 // again\ndefine C 3\n", "doubled-define"),
            "define A 1\ndefine B 2\ndefine C 3\n");
  EXPECT_EQ(Fixed("definequote 1 HA\r\ndefinequote 1 HA", "text-doubled"), "definequote 1 HA\r\n");
}

TEST(Fix, LeavesOpenWhichOfTwoIsMeant) {
  EXPECT_EQ(Fixed("define A 1\ndefine A 2\n", "doubled-define"), "no fix");
}

TEST(Fix, TakesTheStatementAloneOutWhereOthersShareItsLine) {
  EXPECT_EQ(Fixed("define A 1\ndefine A 1 /* this\nand that */\n", "doubled-define"),
            "define A 1\n /* this\nand that */\n");
}

TEST(Fix, WritesOneBlankBetweenThePartsOfALevelLine) {
  EXPECT_EQ(Fixed("definelevelname 0\t7 E1L8.map 05:00 03:00 FIRST  STEPS\n", "level-blanks"),
            "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST  STEPS\n");
}

class InsertedItem : public testing::TestWithParam<PanelItem> {};

TEST_P(InsertedItem, ComesFromTheTemplate) {
  for (const ModTexts* mod : {&OlderMod(), &NewerMod()}) {
    std::vector<std::string> lines = LinesOf((*mod)[kUser]);
    const auto defines = LinesThatBegin(lines, "define " + GetParam().define);
    // The panel's first item has none in front of it, and of QSIZE the dialect is known.
    if (defines.empty() || GetParam().define == "MAXPLAYERHEALTH" || GetParam().define == "QSIZE") {
      continue;
    }
    const std::string line = lines[defines.front()];
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(defines.front()));
    const std::string fixed = Fixed(TextOf(lines), "panel-missing");
    EXPECT_NE(fixed.find("\r\n" + line + "\r\n"), std::string::npos) << fixed.substr(0, 80);
    EXPECT_EQ(fixed.size(), (*mod)[kUser].size());
  }
}

INSTANTIATE_TEST_SUITE_P(Check, InsertedItem, testing::ValuesIn(PanelItems()),
                         [](const auto& item) { return item.param.define; });

}  // namespace
}  // namespace tessel::test
