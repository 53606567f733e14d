// What a define says, and what is wrong with one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/Definitions.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Each define as "NAME=VALUE", with "+REST" where it has one.
std::vector<std::string> DefinitionTexts(const Script& script) {
  std::vector<std::string> shown;
  for (const Definition& definition : Definitions(script)) {
    std::string line(script.Text(definition.name));
    line += '=';
    line += script.Text(definition.value);
    if (!definition.rest.IsEmpty()) (line += '+') += script.Text(definition.rest);
    shown.push_back(line);
  }
  return shown;
}

std::vector<std::string> Defines(std::string_view text) { return DefinitionTexts(Script(text)); }

Definition OnlyDefinition(std::string_view text) {
  const auto all = Definitions(Script(text));
  EXPECT_EQ(all.size(), 1U) << text;
  return all.empty() ? Definition{} : all.front();
}

TEST(Definition, HasANameAndAValue) {
  EXPECT_THAT(Defines("define A 1\r\ndefine  B   YES\r\n"), ElementsAre("A=1", "B=YES"));
}

TEST(Definition, IsKnownInAnyCase) { EXPECT_THAT(Defines("DEFINE a 1"), ElementsAre("a=1")); }

TEST(Definition, HasItsValueInFrontOfAComment) {
  EXPECT_THAT(Defines("define A 100//x"), ElementsAre("A=100"));
  EXPECT_THAT(Defines("define A 100 /* x */"), ElementsAre("A=100"));
  EXPECT_THAT(Defines("define A /* x */ 100"), ElementsAre("A=100"));
}

TEST(Definition, IsNoneInAComment) {
  EXPECT_THAT(Defines("// define A 1\n/* define B 2\ndefine C 3 */ define D 4"),
              ElementsAre("D=4"));
}

TEST(Definition, IsNoneInALongerWord) {
  EXPECT_THAT(Defines("defined A 1\nxdefine B 2\ndefine_ C 3"), IsEmpty());
}

TEST(Definition, EndsWithItsLine) {
  EXPECT_THAT(Defines("define A\n5"), ElementsAre("A="));
  EXPECT_THAT(Defines("define\nA 5"), ElementsAre("="));
  EXPECT_THAT(Defines("define A\r5"), ElementsAre("A="));
  EXPECT_THAT(Defines("define A /* \n */ 5"), ElementsAre("A="));
}

TEST(Definition, TakesAnyWordForItsName) {
  EXPECT_THAT(Defines("define state 1\ndefine define 2"), ElementsAre("state=1", "define=2"));
}

TEST(Definition, KeepsWhatFollowsItsValueApart) {
  EXPECT_THAT(Defines("define A 1 2 3 // x"), ElementsAre("A=1+2 3"));
  EXPECT_THAT(Defines("define A 1 define B 2"), ElementsAre("A=1+define B 2"));
  EXPECT_THAT(Defines("define A 1 {"), ElementsAre("A=1+{"));
}

TEST(Definition, IsNoneInTheTextOfAQuoteOrTitle) {
  EXPECT_THAT(Defines("definequote 1 define A 1\ndefinelevelname 0 0 a b c define A 1"), IsEmpty());
}

TEST(Definition, SaysWhatIsMissing) {
  EXPECT_FALSE(OnlyDefinition("define").HasName());
  EXPECT_EQ(OnlyDefinition("define ").name, (Range{6, 6}));
  EXPECT_TRUE(OnlyDefinition("define A").HasName());
  EXPECT_FALSE(OnlyDefinition("define A // note").HasValue());
  EXPECT_EQ(OnlyDefinition("define A // note").value, (Range{8, 8}));
  EXPECT_FALSE(OnlyDefinition("define A").IsComplete());
  EXPECT_TRUE(OnlyDefinition("define A 1").IsComplete());
  EXPECT_FALSE(OnlyDefinition("define A 1 2").IsComplete());
}

TEST(Definition, HasAllItsRanges) {
  const Definition definition = OnlyDefinition("  define AB  17   // x");
  EXPECT_EQ(definition.keyword, (Range{2, 8}));
  EXPECT_EQ(definition.name, (Range{9, 11}));
  EXPECT_EQ(definition.value, (Range{13, 15}));
  EXPECT_TRUE(definition.rest.IsEmpty());
  EXPECT_EQ(definition.end, 18);
}

TEST(Definition, EndsWhereItsCommentOrItsLineBreakBegins) {
  EXPECT_EQ(OnlyDefinition("define A 1  \r\n").end, 12);
  EXPECT_EQ(OnlyDefinition("define A 1  ").end, 12);
  EXPECT_EQ(OnlyDefinition("define A 1 /* x */ ").end, 11);
  EXPECT_EQ(OnlyDefinition("define A /* x */ 1 ").end, 19);
  EXPECT_EQ(OnlyDefinition("define A // x").end, 9);
}

TEST(Definition, SaysWhetherATabStandsInIt) {
  EXPECT_FALSE(OnlyDefinition("\tdefine A 1 //\t").hasTab);
  EXPECT_TRUE(OnlyDefinition("define\tA 1").hasTab);
  EXPECT_TRUE(OnlyDefinition("define A\t1").hasTab);
  EXPECT_TRUE(OnlyDefinition("define A 1\t// x").hasTab);
}

TEST(Definition, HasANumberWhereItsValueIsOneOf32Bits) {
  EXPECT_EQ(OnlyDefinition("define A 100").number, 100);
  EXPECT_EQ(OnlyDefinition("define A -22").number, -22);
  EXPECT_EQ(OnlyDefinition("define A 2147483647").number, 2147483647);
  EXPECT_EQ(OnlyDefinition("define A -2147483648").number, -2147483647 - 1);
  for (const char* value :
       {"2147483648", "99999999999", "abc", "1x", "1.5", "+1", "0x10", "-", "1/2", "\x80", ""}) {
    EXPECT_EQ(OnlyDefinition("define A " + std::string(value)).number, std::nullopt) << value;
  }
}

TEST(Definition, IsFoundByItsNameInAnyCase) {
  const Script script("define Ab\xC4 1\ndefine B 2\ndefine aB\xE4 3\n// define AB\xC4 4");
  EXPECT_EQ(DefinitionsOf(script, "aB\xE4").size(), 2U);
  EXPECT_EQ(DefinitionsOf(script, "b").size(), 1U);
  EXPECT_THAT(DefinitionsOf(script, "a"), IsEmpty());
}

TEST(Definition, HoldsTheBytesFromItsKeywordToItsLastWord) {
  const Script script(" define A 1 2 // x\n");
  EXPECT_FALSE(DefinitionAt(script, 0).has_value());
  EXPECT_TRUE(DefinitionAt(script, 1).has_value());
  EXPECT_TRUE(DefinitionAt(script, 12).has_value());
  EXPECT_FALSE(DefinitionAt(script, 13).has_value());
  EXPECT_FALSE(DefinitionAt(script, 15).has_value());
}

TEST(Definition, HoldsNoByteOfAnotherStatement) {
  const Script script("define A 1\nmusic 1 a.mid");
  EXPECT_FALSE(DefinitionAt(script, 12).has_value());
}

}  // namespace
}  // namespace tessel::language
