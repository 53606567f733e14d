// A host is asked before the settings panel writes, and what it refuses is not written.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "control/ucTessel.h"
#include "support/FakeServices.h"
#include "support/SelectionText.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {
namespace {

using Question = std::pair<PanelWrite, std::string>;

class PanelWrites : public testing::Test {
 protected:
  PanelWrites() {
    services_.settings.SaveSetting("ConWords", "ifhit", "ifhit");
    control_.Initialize();
  }

  std::vector<Question> TakeAsked() { return std::exchange(asked_, {}); }
  HostedControls& C() { return control_.Controls(); }
  RichTextBox& Editor() { return CurrentEditor(C()); }
  void Given(const std::string& marked) { SetMarked(Editor(), marked); }
  std::string Shown() { return Marked(Editor()); }

  FakeServices services_;
  bool allowed_ = false;
  std::vector<Question> asked_;
  ucTessel control_{services_.Get(),
                    {.mayPanelWrite = [this](PanelWrite write, std::string_view text) {
                      asked_.emplace_back(write, text);
                      return allowed_;
                    }}};
};

TEST_F(PanelWrites, ATypedValueIsAskedAboutOnce) {
  for (const auto& [typed, asked] :
       std::vector<std::pair<std::string, std::string>>{{"75", "75"}, {"", "0"}}) {
    Given("define A [100] // x");
    C().cmbweap[0].Type(typed);
    EXPECT_EQ(TakeAsked(), (std::vector<Question>{{PanelWrite::kValue, asked}}));
    EXPECT_EQ(Shown(), "define A [100] // x");
  }
}

TEST_F(PanelWrites, NothingIsAskedWhereNothingWouldBeWritten) {
  Given("define A []100");
  C().cmbweap[0].Type("75");
  Given("define A [YES]");
  C().cmbweap[0].Type("75");
  C().cmbweap[0].Pick(2);
  Given("define A [100]");
  C().cmbweap[0].Type("  ");
  C().cmbweap[0].Pick(0);
  Given("define MAXPLAYERHEALTH 100[]");
  C().lstPlayers.Pick(0);
  Given("define A []100");
  C().cmdInsert[0].SetEnabled(true);
  C().cmdInsert[0].Press();
  EXPECT_TRUE(TakeAsked().empty());
}

TEST_F(PanelWrites, APickedPresetIsAskedAbout) {
  Given("define A []100");
  C().cmbweap[1].Pick(2);
  EXPECT_EQ(TakeAsked(), (std::vector<Question>{{PanelWrite::kValue, "10"}}));
  EXPECT_EQ(Shown(), "define A []100");
}

TEST_F(PanelWrites, AnOptionIsAskedAboutWithWhatItReplacesSelected) {
  Given("define CAMERASDESTRUCTABLE YES // x[]");
  C().optCamNo.Press();
  EXPECT_EQ(TakeAsked(), (std::vector<Question>{{PanelWrite::kYesNo, "NO"}}));
  EXPECT_EQ(Shown(), "define CAMERASDESTRUCTABLE [YES] // x");
}

TEST_F(PanelWrites, AnInsertOfALevelIsAskedAbout) {
  Given("definelevelname 0 0 [E1L1.map] 01:00 02:00 TITLE");
  C().txtMap.SetText("new.map");
  C().cmdInsert[0].SetEnabled(true);
  C().cmdInsert[0].Press();
  EXPECT_EQ(TakeAsked(), (std::vector<Question>{{PanelWrite::kLevel, "new.map"}}));
  EXPECT_EQ(Editor().SelText(), "E1L1.map");
}

TEST_F(PanelWrites, AnInsertOfAWordIsAskedAbout) {
  Given("a [b] c");
  ASSERT_GT(C().lstWords.ListCount(), 0);
  C().lstWords.PickTwice(0);
  EXPECT_EQ(TakeAsked(), (std::vector<Question>{{PanelWrite::kWord, "ifhit"}}));
  EXPECT_EQ(Shown(), "a [b] c");
}

TEST_F(PanelWrites, WhatIsAllowedIsWrittenAsWithoutAHost) {
  allowed_ = true;
  Given("define A [100] // x");
  C().cmbweap[0].Type("75");
  EXPECT_EQ(Shown(), "define A [75] // x");
  C().cmbweap[0].Pick(2);
  EXPECT_EQ(Shown(), "define A [10] // x");
  Given("define CAMERASDESTRUCTABLE YES[]");
  C().optCamNo.Press();
  EXPECT_EQ(Shown(), "define CAMERASDESTRUCTABLE [NO]");
}

}  // namespace
}  // namespace tessel::test
