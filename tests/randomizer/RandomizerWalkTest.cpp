// The walk: which values are drawn, in which order, and what is written where.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "randomizer/frmRand.h"
#include "settings/ItemTables.h"
#include "support/ControlFixture.h"

namespace tessel {
namespace {

struct Asked {
  std::string lower, upper;
  bool keepBelow = false, keepAbove = false;
};

class RandomizerWalk : public test::ControlFixture {
 protected:
  void Answer(const Asked& asked) {
    services_.forms.scripts.push_back([=](Form& shown) {
      auto& form = static_cast<frmRand&>(shown);
      form.cmbChoose[0].Type(asked.lower);
      form.cmbChoose[1].Type(asked.upper);
      if (asked.keepBelow) form.chkLvLw.Press();
      if (asked.keepAbove) form.chkLvUp.Press();
      form.cmdOk.Press();
    });
  }
  void Randomize(const char* section, const Asked& asked) {
    Answer(asked);
    std::string("All") == section ? Press("RandAll") : PressItem("RandSec", section);
  }
  /// A text with a define for every player item.
  static std::string PlayerFile(const std::vector<std::string>& values) {
    std::string text = "// a user file\r\n";
    for (std::size_t i = 0; i < PlayerItemTable.size(); ++i) {
      text += "define  " + std::string(PlayerItemTable[i].key) + "   " + values[i];
      text += i % 2 == 0 ? "   // note 1/2\r\n" : "\r\n";
    }
    return text + "state 7 8\r\n";
  }
  static std::vector<std::string> Each(const std::string& value) {
    return std::vector<std::string>(PlayerItemTable.size(), value);
  }
};

constexpr int kPlayerItems = static_cast<int>(PlayerItemTable.size());

TEST_F(RandomizerWalk, WritesTheSequenceOfTheUnseededGenerator) {
  Editor().SetText(PlayerFile(Each("55")));
  Randomize("Player", {"1", "100"});
  const std::string text = Editor().Text();
  // 0.7055475, 0.5334240, 0.5795186, 0.2895625, 0.3019480
  EXPECT_NE(text.find("MAXPLAYERHEALTH   71   // note"), std::string::npos) << text;
  EXPECT_NE(text.find("MAXPLAYERATOMICHEALTH   54\r\n"), std::string::npos);
  EXPECT_NE(text.find("STARTARMORHEALTH   58   // note"), std::string::npos);
  EXPECT_NE(text.find("STEROID_AMOUNT   29\r\n"), std::string::npos);
  EXPECT_NE(text.find("SHIELD_AMOUNT   31   // note"), std::string::npos);
  EXPECT_EQ(services_.random.drawn, kPlayerItems);
  EXPECT_EQ(ImageOfTab(1), "RedDot");
}

TEST_F(RandomizerWalk, KeepsEverythingButTheValues) {
  Editor().SetText(PlayerFile(Each("55")));
  Randomize("Player", {"7", "7"});
  EXPECT_EQ(Editor().Text(), PlayerFile(Each("7")));
}

// 5.9 becomes 6 and 5.1 becomes 5: the larger one is the limit.
TEST_F(RandomizerWalk, WritesTheLargerOfTwoBoundsThatCrossWhenTheyAreRounded) {
  Editor().SetText(PlayerFile(Each("55")));
  Randomize("Player", {"5.9", "5.1"});
  EXPECT_EQ(Editor().Text(), PlayerFile(Each("6")));
}

struct KeepRow {
  bool below, above;
  const char* of5;
  const char* of10;
  const char* of15;
  const char* of20;
  const char* of25;
};
constexpr KeepRow kKeep[] = {
    {false, false, "12", "12", "12", "12", "12"},
    {true, false, "5", "12", "12", "12", "12"},
    {false, true, "12", "12", "12", "12", "25"},
    {true, true, "5", "12", "12", "12", "25"},
};

/// The values for the player items, from the first again when they end.
std::vector<std::string> InTurn(const std::vector<std::string>& values) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i < PlayerItemTable.size(); ++i) all.push_back(values[i % values.size()]);
  return all;
}

TEST_F(RandomizerWalk, LeavesValuesBeyondABoundThatIsToBeKept) {
  for (const KeepRow& row : kKeep) {
    services_.random.numbers.assign(kPlayerItems, 0.25F);  // int(11 * 0.25 + 10) = 12
    services_.random.drawn = 0;
    Editor().SetText(PlayerFile(InTurn({"5", "10", "15", "20", "25"})));
    Randomize("Player", {"10", "20", row.below, row.above});
    const auto after = InTurn({row.of5, row.of10, row.of15, row.of20, row.of25});
    EXPECT_EQ(Editor().Text(), PlayerFile(after));
    EXPECT_EQ(services_.random.drawn, std::ranges::count(after, "12"));
    services_.random.numbers.clear();
  }
}

TEST_F(RandomizerWalk, ComparesTheIntegerPartOfAValue) {
  auto values = Each("15");
  values[0] = "20.9";   // 20
  values[1] = "9.9";    // 9
  values[2] = "15xyz";  // 15
  Editor().SetText(PlayerFile(values));
  Randomize("Player", {"10", "20", true, true});
  EXPECT_EQ(services_.random.drawn, kPlayerItems - 1);
  EXPECT_NE(Editor().Text().find("ATOMICHEALTH   9.9\r\n"), std::string::npos);
}

TEST_F(RandomizerWalk, StopsAtAValueThatIsNotANumberAndNamesIt) {
  auto values = Each("55");
  values[2] = "LOTS";
  Editor().SetText(PlayerFile(values));
  Randomize("Player", {"7", "7", false, true});
  values[0] = values[1] = "55";  // above the range, and kept
  EXPECT_EQ(Editor().Text(), PlayerFile(values));
  ASSERT_EQ(services_.messages.shown.size(), 1U);
  const auto& box = services_.messages.shown[0];
  EXPECT_EQ(box.icon, MessageIcon::kExclamation);
  EXPECT_EQ(box.title, "Zanth Manager");
  EXPECT_NE(box.text.find("LOTS"), std::string::npos) << box.text;
  EXPECT_NE(box.text.find("Armor"), std::string::npos) << box.text;
}

TEST_F(RandomizerWalk, KeepsWhatWasWrittenBeforeItStopped) {
  auto values = Each("55");
  values[2] = "LOTS";
  Editor().SetText(PlayerFile(values));
  Randomize("Player", {"60", "60", false, true});
  values[0] = values[1] = "60";
  EXPECT_EQ(Editor().Text(), PlayerFile(values));
}

TEST_F(RandomizerWalk, ReadsNoValueWhenNoneIsToBeKept) {
  auto values = Each("55");
  values[2] = "LOTS";
  Editor().SetText(PlayerFile(values));
  Randomize("Player", {"7", "7"});
  EXPECT_EQ(Editor().Text(), PlayerFile(Each("7")));
  EXPECT_TRUE(services_.messages.shown.empty());
}

TEST_F(RandomizerWalk, DrawsForAMissingDefineAndWritesIntoTheSelectionThatStands) {
  const auto fileOf = [](int ofFirst, int ofLast) {
    return "define " + std::string(PlayerItemTable.front().key) + " " + std::to_string(ofFirst) +
           " // x\r\ndefine " + std::string(PlayerItemTable.back().key) + " " +
           std::to_string(ofLast) + "\r\n";
  };
  Editor().SetText(fileOf(1, 2));
  for (int i = 0; i < kPlayerItems; ++i) {  // draws 10, 11, 12 ...
    services_.random.numbers.push_back((static_cast<float>(i) + 0.5F) / kPlayerItems);
  }
  const int last = 10 + kPlayerItems - 1;
  Randomize("Player", {"10", std::to_string(last)});
  // The items between the two have no define: each writes over the first value.
  EXPECT_EQ(Editor().Text(), fileOf(last - 1, last));
  EXPECT_EQ(services_.random.drawn, kPlayerItems);
}

TEST_F(RandomizerWalk, DrawsAndWritesNothingWhereNothingIsSelected) {
  Editor().SetText("nothing to find\r\n");
  Randomize("Player", {"10", "19"});
  EXPECT_EQ(Editor().Text(), "nothing to find\r\n");
  EXPECT_EQ(services_.random.drawn, kPlayerItems);
}

TEST_F(RandomizerWalk, TakesTheSectionsInTheirOrder) {
  Editor().SetText("x\r\n");
  std::vector<std::string> order;
  std::vector<Subscription> watching;
  const auto watch = [&](ListBox& list) {
    watching.push_back(list.Click.Connect([&order, &list] {
      order.push_back(list.Name() + " " + std::to_string(list.ListIndex()));
    }));
  };
  HostedControls& c = Controls();
  for (ListBox* list : {&c.lstPlayers, &c.lstWeapInfo, &c.lstWeapon, &c.lstEnemy, &c.lstConMisc})
    watch(*list);
  Randomize("All", {"1", "9"});

  std::vector<std::string> expected;
  const auto walk = [&](const std::string& list, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) expected.push_back(list + " " + std::to_string(i));
  };
  walk("lstPlayers", PlayerItemTable.size());
  for (std::size_t category = 0; category < WeaponCategoryTable.size(); ++category) {
    expected.push_back("lstWeapInfo " + std::to_string(category));
    walk("lstWeapon", WeaponCategoryTable[category].weapons.size());
  }
  walk("lstEnemy", EnemyItemTable.size());
  walk("lstConMisc", MiscItemTable.size());
  EXPECT_EQ(order, expected);
  EXPECT_EQ(services_.random.drawn, std::ssize(expected) - std::ssize(WeaponCategoryTable));
  EXPECT_EQ(services_.loop.calls, services_.random.drawn);  // the window stays painted
  EXPECT_EQ(services_.forms.shown.size(), 1U);
  EXPECT_EQ(c.tbsCon.Selected(), 4);
}

TEST_F(RandomizerWalk, SelectsTheSectionsPage) {
  const char* sections[] = {"Player", "Weapon", "Enemy", "Misc"};
  for (int page = 4; page-- > 0;) {
    Randomize(sections[page], {"1", "9"});
    EXPECT_EQ(Controls().tbsCon.Selected(), page + 1);
    EXPECT_EQ(Controls().picCon[page].Left(), 120);
  }
}

TEST_F(RandomizerWalk, BringsAHiddenPanelBack) {
  Controls().tbsCon.Press(3);
  Press("ShowTabs");
  ASSERT_LT(Controls().tbsCon.Left(), 0);
  Answer({"1", "9"});
  Press("RandSec");
  EXPECT_TRUE(Controls().tbToolBar.Pressed("ShowTabs"));
  EXPECT_EQ(Controls().tbsCon.Left(), 0);
  EXPECT_EQ(Controls().tbsCon.Height(), 2055);
  EXPECT_EQ(Controls().tbsCon.Selected(), 3);
  EXPECT_EQ(services_.random.drawn, std::ssize(EnemyItemTable));
}

TEST_F(RandomizerWalk, LeavesAHiddenPanelHiddenForABoundOfZero) {
  Press("ShowTabs");
  Randomize("Player", {"0", "9"});
  EXPECT_LT(Controls().tbsCon.Left(), 0);
}

TEST_F(RandomizerWalk, WritesNothingForAnEmptyList) {
  Controls().lstEnemy.Clear();
  Given("define A [1]");
  Randomize("Enemy", {"5", "9"});
  EXPECT_EQ(Shown(), "define A [1]");
  EXPECT_EQ(services_.random.drawn, 0);
}

TEST_F(RandomizerWalk, ReachesBothEndsOfTheRange) {
  auto values = Each("1");
  Editor().SetText(PlayerFile(values));
  services_.random.numbers.assign(kPlayerItems, 0.0F);
  services_.random.numbers[1] = 16777215.0F / 16777216.0F;
  Randomize("Player", {"-32768", "32767"});
  values = Each("-32768");
  values[1] = "32767";
  EXPECT_EQ(Editor().Text(), PlayerFile(values));
}

TEST_F(RandomizerWalk, ComputesInSinglePrecision) {
  Editor().SetText(PlayerFile(Each("1")));
  services_.random.numbers.assign(kPlayerItems, 16520549.0F / 16777216.0F);
  Randomize("Player", {"10000", "20000"});
  EXPECT_EQ(Editor().Text(), PlayerFile(Each("19848")));  // double precision: 19847
}

TEST_F(RandomizerWalk, NeverLeavesTheRangeByRounding) {
  Editor().SetText(PlayerFile(Each("1")));
  services_.random.numbers.assign(kPlayerItems,
                                  16767394.0F / 16777216.0F);  // 20000.999 becomes 20001
  Randomize("Player", {"20000", "20000"});
  EXPECT_EQ(Editor().Text(), PlayerFile(Each("20000")));
}

RC_GTEST_FIXTURE_PROP(RandomizerWalk, LeavesEveryByteOutsideTheValues, ()) {
  const auto blanks = [] {
    return std::string(static_cast<std::size_t>(*rc::gen::inRange(1, 4)), ' ');
  };
  const int lower = *rc::gen::distinctFrom(rc::gen::inRange(-500, 500), 0);
  const int upper = *rc::gen::suchThat(rc::gen::inRange(lower, 1000), [](int n) { return n != 0; });
  LinearCongruentialRandom expected;
  std::string before, after;
  for (const Item& item : PlayerItemTable) {
    const std::string head = *rc::gen::element<std::string>("", "// 1 2 3\r\n", "state x 12\n") +
                             "define" + blanks() + std::string(item.key) + blanks();
    const std::string tail = *rc::gen::element<std::string>(
        "\r\n", "\n", "  \r\n", " \n", "  // 9 / 8\r\n", "// x 5\r\n", "/* 4 */ 3\n");
    const auto width = static_cast<float>(upper - lower + 1);
    const int drawn =
        static_cast<int>(std::floor(width * expected.Next() + static_cast<float>(lower)));
    before += head + std::to_string(*rc::gen::inRange(0, 9999)) + tail;
    after += head + std::to_string(drawn) + tail;
  }
  Editor().SetText(before);
  Randomize("Player", {std::to_string(lower), std::to_string(upper)});
  RC_ASSERT(Editor().Text() == after);
}

}  // namespace
}  // namespace tessel
