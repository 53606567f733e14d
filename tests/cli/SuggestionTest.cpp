#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/report/Suggestion.h"

namespace tessel::cli {
namespace {

using Names = std::vector<std::string>;

TEST(Suggestion, CountsLettersInFrontAsThoseAnywhereElse) {
  EXPECT_EQ(Suggestions("xammo", {"ammo"}), Names{"ammo"});
  EXPECT_EQ(Suggestions("xyammo", {"ammo"}), Names{});
  EXPECT_EQ(Suggestions("ammoxy", {"ammo"}), Names{});
}

TEST(Suggestion, NamesTheNearestFirstAndThreeAtMost) {
  const Names names = {"healths", "health", "heelths", "hearths", "stealth"};
  EXPECT_EQ(Suggestions("healthx", names), (Names{"healths", "health"}));
  EXPECT_EQ(Suggestions("xxxx", {"xxxa", "xxxb", "xxxc", "xxxd"}), (Names{"xxxa", "xxxb", "xxxc"}));
}

TEST(Suggestion, KnowsTheBeginningOfANameAndOfItsLastPart) {
  EXPECT_EQ(Suggestions("wea", {"weapon/strength"}), Names{"weapon/strength"});
  EXPECT_EQ(Suggestions("str", {"weapon/strength"}), Names{"weapon/strength"});
  EXPECT_EQ(Suggestions("we", {"weapon/strength"}), Names{});
}

}  // namespace
}  // namespace tessel::cli
