// Every rule by its own table: what it tells about itself, and its examples.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "Mods.h"

namespace tessel::test {
namespace {

using check::AllRules;
using check::Findings;
using check::Rule;

Findings FindingsIn(std::string_view example, const Rule& rule) {
  return check::Check(check::ExampleFiles(example), WhatTesselKnows(), {.rules = {&rule}});
}

class EachRule : public testing::TestWithParam<const Rule*> {};

TEST_P(EachRule, FindsNothingInItsGoodExample) {
  EXPECT_EQ(Shown(FindingsIn(GetParam()->good, *GetParam())), "");
}

TEST_P(EachRule, FindsTheFaultOfItsBadExample) {
  const Findings findings = FindingsIn(GetParam()->bad, *GetParam());
  ASSERT_FALSE(findings.empty());
  const auto files = check::ExampleFiles(GetParam()->bad);
  for (const check::Finding& finding : findings) {
    ASSERT_LT(finding.file, files.size());
    EXPECT_LT(finding.range.begin, std::ssize(files[finding.file].text));
    EXPECT_LE(finding.range.end, std::ssize(files[finding.file].text));
    EXPECT_FALSE(finding.text.empty());
    EXPECT_FALSE(finding.text.ends_with('.'));
  }
}

TEST_P(EachRule, TellsWhatItIs) {
  const Rule& rule = *GetParam();
  EXPECT_EQ(rule.id.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos);
  EXPECT_FALSE(rule.summary.ends_with('.')) << rule.summary;
  EXPECT_TRUE(rule.explanation.ends_with('.')) << rule.explanation;
  EXPECT_LE(rule.summary.size(), 70U);
  EXPECT_EQ(check::RuleNamed(rule.id), &rule);
}

TEST_P(EachRule, IsSwitchedOffByAComment) {
  const Rule& rule = *GetParam();
  for (const std::string& which : {std::string(rule.id), std::string()}) {
    auto files = check::ExampleFiles(rule.bad);
    std::vector<std::string> texts;
    texts.reserve(files.size());
    for (check::Source& file : files) {
      texts.push_back("// check: off " + which + "\n" + std::string(file.text));
      file.text = texts.back();
    }
    EXPECT_EQ(Shown(check::Check(files, WhatTesselKnows(), {.rules = {&rule}})), "");
  }
}

TEST_P(EachRule, IsSwitchedOffByAnOption) {
  const Rule& rule = *GetParam();
  const Findings all = check::Check(check::ExampleFiles(rule.bad), WhatTesselKnows());
  const Findings without =
      check::Check(check::ExampleFiles(rule.bad), WhatTesselKnows(), {.off = {&rule}});
  const auto isOfRule = [&](const check::Finding& finding) { return finding.rule == &rule; };
  EXPECT_TRUE(std::ranges::any_of(all, isOfRule));
  EXPECT_TRUE(std::ranges::none_of(without, isOfRule));
  EXPECT_EQ(std::ssize(all) - std::ranges::count_if(all, isOfRule), std::ssize(without));
}

INSTANTIATE_TEST_SUITE_P(Check, EachRule, testing::ValuesIn(AllRules()), [](const auto& rule) {
  std::string name(rule.param->id);
  std::erase(name, '-');
  return name;
});

TEST(Rules, HaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  for (const Rule* rule : AllRules()) EXPECT_TRUE(names.insert(rule->id).second) << rule->id;
  EXPECT_EQ(check::RuleNamed("no-such-rule"), nullptr);
}

TEST(Rules, SplitAnExampleIntoItsFiles) {
  const auto files = check::ExampleFiles("==> A.CON <==\none\n==> B.CON <==\ntwo\nthree");
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[0].name, "A.CON");
  EXPECT_EQ(files[0].text, "one\n");
  EXPECT_EQ(files[1].text, "two\nthree");
  EXPECT_EQ(check::ExampleFiles("x").front().name, "USER.CON");
}

}  // namespace
}  // namespace tessel::test
