// Nothing is wrong with what ships with the host, nor with what the conversion makes of it.
#include <gtest/gtest.h>

#include "Mods.h"

namespace tessel::test {
namespace {

class EachTemplate : public testing::TestWithParam<const char*> {};

TEST_P(EachTemplate, IsCleanByItself) {
  EXPECT_EQ(Shown(CheckOne(ReadDataFile(GetParam()), {}, GetParam())), "");
}

INSTANTIATE_TEST_SUITE_P(Check, EachTemplate, testing::ValuesIn(kTemplates), [](const auto& name) {
  return std::string(name.param).substr(0, 6) + std::to_string(name.index);
});

TEST(TemplateMods, AreCleanTogether) {
  EXPECT_EQ(Shown(CheckMod(OlderMod())), "");
  EXPECT_EQ(Shown(CheckMod(NewerMod())), "");
}

TEST(TemplateMods, AreCleanWhenConverted) {
  EXPECT_EQ(Shown(CheckOne(ConvertedMod()[kUser])), "");
  EXPECT_EQ(Shown(CheckMod(ConvertedMod())), "");
}

TEST(TemplateMods, AreWhole) {
  ModTexts mod = NewerMod();
  mod[kGame] += "state myown\r\n  spawn NOSUCHSPRITE\r\nends\r\n";
  EXPECT_EQ(CheckMod(mod).size(), 1U) << Shown(CheckMod(mod));
}

}  // namespace
}  // namespace tessel::test
