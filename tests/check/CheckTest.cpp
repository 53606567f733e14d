// Where a finding stands, in which order, and what comments switch off.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "Mods.h"
#include "check/facts/CommandTable.h"
#include "check/facts/LineIndex.h"
#include "check/facts/NameTable.h"
#include "language/Script.h"

namespace tessel::test {
namespace {

using check::ParameterCount;
using check::ParametersOf;

const std::string kNumberRule = "panel-value";

/// The lines, counted from 1, that have findings of the rule about values.
std::vector<Position> LinesFound(const std::string& text) {
  const check::LineIndex lines(text);
  std::vector<Position> found;
  for (const auto& finding : CheckOne(text, {.rules = {check::RuleNamed(kNumberRule)}})) {
    found.push_back(lines.PlaceOf(finding.range.begin).line);
  }
  return found;
}

using Places = std::vector<Position>;

TEST(SwitchComment, BehindSomethingIsForItsLine) {
  EXPECT_EQ(LinesFound("define BOOT_AMOUNT x // check: off panel-value\ndefine SHIELD_AMOUNT x\n"),
            Places{2});
}

TEST(SwitchComment, AloneIsForWhatFollows) {
  EXPECT_EQ(LinesFound("define BOOT_AMOUNT x\n"
                       "  // check: off panel-value\n"
                       "define SHIELD_AMOUNT x\n"
                       "// CHECK: on panel-value\n"
                       "define SCUBA_AMOUNT x\n"),
            (Places{1, 5}));
}

TEST(SwitchComment, NamesAnyNumberOfRules) {
  EXPECT_EQ(LinesFound("// check: off level-order, panel-value\ndefine BOOT_AMOUNT x\n"), Places{});
  EXPECT_EQ(LinesFound("// check: off level-order\ndefine BOOT_AMOUNT x\n"), Places{2});
  EXPECT_EQ(LinesFound("// check: off\ndefine BOOT_AMOUNT x\n"), Places{});
  EXPECT_EQ(LinesFound("//check:off\ndefine BOOT_AMOUNT x\n"), Places{});
}

TEST(SwitchComment, IsNoOtherComment) {
  EXPECT_EQ(LinesFound("/* check: off */\ndefine BOOT_AMOUNT x\n"), Places{2});
  EXPECT_EQ(LinesFound("// to check: off\ndefine BOOT_AMOUNT x\n"), Places{2});
  EXPECT_EQ(LinesFound("// check: this\ndefine BOOT_AMOUNT x\n"), Places{2});
}

TEST(Finding, ComesInTheOrderOfFilesAndText) {
  const std::array<check::Source, 2> sources = {
      {{"A.CON", "define A\ndefine BOOT_AMOUNT x\n"}, {"B.CON", "/*"}}};
  const check::Findings findings = check::Check(sources, WhatTesselKnows());
  ASSERT_EQ(findings.size(), 4U) << Shown(findings);
  EXPECT_EQ(findings[0].range, (language::Range{0, 8}));
  EXPECT_EQ(findings[1].range, (language::Range{28, 29}));
  EXPECT_EQ(findings[3].file, 1U);
}

TEST(Finding, NamesTheOtherFile) {
  const std::array<check::Source, 2> sources = {
      {{"A.CON", "\ndefine X 1\n"}, {"B.CON", "define x 2"}}};
  const check::Findings findings = check::Check(sources, WhatTesselKnows());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].text, "\"x\" stands in line 2 of A.CON already");
}

TEST(Finding, OfANameWaitsForAllIncludedFiles) {
  const std::string game = "include defs.con\r\nstate a\r\n  spawn NOSUCH\r\nends\r\n";
  EXPECT_EQ(Shown(CheckOne(game)), "");
  const std::array<check::Source, 2> sources = {{{"mods/Game.con", game}, {"mods/Defs.con", ""}}};
  EXPECT_EQ(check::Check(sources, WhatTesselKnows()).size(), 1U);
}

TEST(Finding, OfACommandNeedsAWordList) {
  const check::Source source = {"GAME.CON", "state a\nkilit\nends\n"};
  EXPECT_EQ(check::Check({&source, 1}, {}).size(), 0U);
  const std::vector<ScriptWord> words = {{"kilit", "[no parameters]"}};
  EXPECT_EQ(check::Check({&source, 1}, {.words = words}).size(), 0U);
  EXPECT_EQ(check::Check({&source, 1}, WhatTesselKnows()).size(), 1U);
}

TEST(Parameters, AreCountedByTheirBrackets) {
  EXPECT_EQ(ParametersOf("[no parameters] does nothing"), (ParameterCount{0, 0}));
  EXPECT_EQ(ParametersOf("[weapon] [amount] gives"), (ParameterCount{2, 2}));
  EXPECT_EQ(ParametersOf("[move flag] turns"), (ParameterCount{0, 0}));
  EXPECT_EQ(ParametersOf("[Conditions of the player] true"),
            (ParameterCount{0, ParameterCount::kAny}));
  EXPECT_EQ(ParametersOf("[name] [numbers...]"), (ParameterCount{1, ParameterCount::kAny}));
  EXPECT_EQ(ParametersOf("[open"), (ParameterCount{0, ParameterCount::kAny}));
}

TEST(NameTable, KeepsTheFirstPlaceOfANameInAnyCase) {
  check::NameTable names(3);
  EXPECT_EQ(names.Add({"One", 0, 0}), nullptr);
  EXPECT_EQ(names.Add({"two", 0, 1}), nullptr);
  ASSERT_NE(names.Add({"ONE", 1, 5}), nullptr);
  EXPECT_EQ(names.Find("oNE")->statement, 0U);
  EXPECT_EQ(names.Find("three"), nullptr);
}

rc::Gen<std::string> AnyLines(std::size_t pieces) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(
                          pieces, rc::gen::element<std::string>(
                                      "\r", "\n", "\r\n", "a", "define A 1", "/*", "*/", "state",
                                      "{", "ends", "\x1A", "// check: off x", "definelevelname 0 0",
                                      " ", "killit", "definequote")),
                      [](const std::vector<std::string>& all) {
                        std::string text;
                        for (const std::string& piece : all) text += piece;
                        return text;
                      });
}

RC_GTEST_PROP(LineIndex, CountsAsAScriptDoes, ()) {
  std::string text = *AnyLines(*rc::gen::inRange<std::size_t>(0, 60));
  if (*rc::gen::arbitrary<bool>())
    text.insert(0, 4096 - std::min<std::size_t>(4096, text.size() / 2), 'x');
  const check::LineIndex lines(text);
  const language::Script script(text);
  for (Position at = std::max<Position>(0, std::ssize(text) - 200); at <= std::ssize(text); ++at) {
    RC_ASSERT(lines.PlaceOf(at) == script.PlaceOf(at));
  }
}

RC_GTEST_PROP(AnyBytes, CanBeChecked, ()) {
  const std::string text = *AnyLines(*rc::gen::inRange<std::size_t>(0, 60));
  for (const check::Finding& finding : CheckOne(text)) {
    RC_ASSERT(finding.rule != nullptr);
    RC_ASSERT(0 <= finding.range.begin && finding.range.begin <= finding.range.end);
    RC_ASSERT(finding.range.end <= std::ssize(text));
  }
}

}  // namespace
}  // namespace tessel::test
