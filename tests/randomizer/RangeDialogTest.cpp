// The dialog that asks for the range, and what its answers lead to.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "randomizer/frmRand.h"
#include "support/ControlFixture.h"

namespace tessel {
namespace {

using Box = test::FakeMessageBox::Shown;

const std::vector<std::string> kChoices = {
    "1",   "2",   "3",   "4",   "5",   "6",    "7",    "8",    "9",    "10",   "11",   "12",  "13",
    "14",  "15",  "16",  "17",  "18",  "19",   "25",   "50",   "75",   "100",  "200",  "300", "400",
    "500", "600", "700", "800", "900", "1000", "2000", "3000", "4000", "5000", "6000", "7000"};

const std::string kText = "define MAXPLAYERHEALTH 100\r\n";

class RangeDialog : public test::ControlFixture {
 protected:
  RangeDialog() { Editor().SetText(kText); }
  void Open(const std::function<void(frmRand&)>& person) {
    services_.forms.scripts.push_back([=](Form& form) { person(static_cast<frmRand&>(form)); });
    PressItem("RandSec", "Player");
  }
  /// Types both bounds and presses OK; gives true when the dialog closed.
  bool Accept(const std::string& lower, const std::string& upper) {
    bool closed = false;
    Open([&](frmRand& form) {
      form.cmbChoose[0].Type(lower);
      form.cmbChoose[1].Type(upper);
      form.cmdOk.Press();
      closed = !form.Visible();
    });
    return closed;
  }
  std::string Written() { return Editor().Text().substr(23, Editor().Text().find("\r\n") - 23); }
  const std::vector<Box>& Boxes() { return services_.messages.shown; }
  void ExpectNothingChanged() {
    EXPECT_EQ(Editor().Text(), kText);
    EXPECT_EQ(services_.random.drawn, 0);
  }
};

TEST_F(RangeDialog, OffersTheChoicesInBothBoxes) {
  ASSERT_EQ(kChoices.size(), 38U);
  Open([](frmRand& form) {
    EXPECT_EQ(form.cmbChoose[0].List(), kChoices);
    EXPECT_EQ(form.cmbChoose[1].List(), kChoices);
  });
}

TEST_F(RangeDialog, IsNamedAfterTheSection) {
  std::vector<std::string> captions;
  const auto note = [&](Form& form) { captions.push_back(form.Caption()); };
  services_.forms.scripts.assign(7, note);
  for (const char* key : {"Player", "Weapon", "Enemy", "Misc"}) PressItem("RandSec", key);
  Press("RandAll");
  Press("RandSec");
  Controls().tbsCon.Press(3);
  Press("RandSec");
  EXPECT_EQ(captions,
            (std::vector<std::string>{"Player Section Randomizer", "Weapon Section Randomizer",
                                      "Enemy Section Randomizer", "Misc Section Randomizer",
                                      "Randomize All Sections", "Player Section Randomizer",
                                      "Enemy Section Randomizer"}));
}

TEST_F(RangeDialog, CarriesItsTexts) {
  const frmRand form;
  EXPECT_EQ(form.Caption(), "User Con Randomizer");
  EXPECT_EQ(form.lblRange.Caption(), "Select Numeric Range");
  EXPECT_EQ(form.lblLower.Caption(), "Lower Bounds");
  EXPECT_EQ(form.lblUpper.Caption(), "Upper Bounds");
  EXPECT_EQ(form.chkLvLw.Caption(), "If value encountered is less than Lower Bounds, leave as is.");
  EXPECT_EQ(form.chkLvUp.Caption(),
            "If value encountered is greater than Upper Bounds, leave as is.");
}

TEST_F(RangeDialog, AsksForAMissingBoundAndStaysOpen) {
  EXPECT_FALSE(Accept("", "5"));
  EXPECT_FALSE(Accept("5", ""));
  EXPECT_FALSE(Accept("", ""));
  const Box box{"Please select a value", MessageIcon::kExclamation, "", MessageButtons::kOk};
  EXPECT_EQ(Boxes(), (std::vector<Box>{box, box, box}));
  ExpectNothingChanged();
}

TEST_F(RangeDialog, RefusesAnUpperBoundBelowTheLowerAndStaysOpen) {
  EXPECT_FALSE(Accept("6", "5"));
  EXPECT_FALSE(Accept("-1", "-2"));
  EXPECT_FALSE(Accept("x", "-1"));
  const Box box{"Upper Bounds must be a number greater than Lower Bounds", MessageIcon::kNone, "",
                MessageButtons::kOk};
  EXPECT_EQ(Boxes(), (std::vector<Box>{box, box, box}));
  ExpectNothingChanged();
}

TEST_F(RangeDialog, ComparesTheIntegerPartsAlone) {
  EXPECT_TRUE(Accept("5.9", "5.1"));
  EXPECT_TRUE(Accept("-1.2", "-1.8"));   // both at -2
  EXPECT_FALSE(Accept("-1.0", "-1.2"));  // -1 and -2
}

TEST_F(RangeDialog, AcceptsAfterACorrection) {
  Open([](frmRand& form) {
    form.cmdOk.Press();
    form.cmbChoose[0].Pick(4);
    form.cmbChoose[1].Pick(4);
    form.cmdOk.Press();
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Written(), "5");
}

TEST_F(RangeDialog, ChangesNothingWhenCancelled) {
  Open([](frmRand& form) {
    form.cmbChoose[0].Type("5");
    form.cmbChoose[1].Type("9");
    form.cmdCancel.Press();
    EXPECT_FALSE(form.Visible());
  });
  ExpectNothingChanged();
}

TEST_F(RangeDialog, ForgetsAnEarlierOkWhenItIsCancelled) {
  EXPECT_TRUE(Accept("5", "5"));
  Editor().SetText(kText);
  services_.random.drawn = 0;
  Open([](frmRand& form) {
    EXPECT_EQ(form.cmbChoose[0].Text(), "");
    EXPECT_EQ(form.cmbChoose[1].Text(), "");
    form.cmdCancel.Press();
  });
  ExpectNothingChanged();
}

TEST_F(RangeDialog, OpensWithBothBoxesOff) {
  Open([](frmRand& form) {
    form.chkLvLw.Press();
    form.chkLvUp.Press();
    form.cmdCancel.Press();
  });
  Open([](frmRand& form) {
    EXPECT_FALSE(form.chkLvLw.Value());
    EXPECT_FALSE(form.chkLvUp.Value());
  });
}

TEST_F(RangeDialog, DoesNothingForABoundOfZero) {
  EXPECT_TRUE(Accept("0", "5"));
  EXPECT_TRUE(Accept("-5", "0"));
  EXPECT_TRUE(Accept("none", "5"));
  EXPECT_TRUE(Accept(" ", "5"));
  EXPECT_TRUE(Accept("0.5", "5"));  // half to even
  EXPECT_TRUE(Accept("-0.5", "5"));
  EXPECT_TRUE(Boxes().empty());
  ExpectNothingChanged();
}

TEST_F(RangeDialog, RoundsHalvesToTheEvenNumber) {
  struct Row {
    const char *bound, *written;
  };
  for (const Row& row : {Row{"1.5", "2"},
                         {"2.5", "2"},
                         {"3.5", "4"},
                         {"2.6", "3"},
                         {"7 and more", "7"},
                         {"  8", "8"},
                         {"-1.5", "-2"},
                         {"-2.5", "-2"},
                         {"1e2", "100"},
                         {"32767.4", "32767"},
                         {"-32768.5", "-32768"}}) {
    Editor().SetText(kText);
    EXPECT_TRUE(Accept(row.bound, row.bound));
    EXPECT_EQ(Written(), row.written) << row.bound;
  }
}

TEST_F(RangeDialog, RefusesABoundOutsideSixteenBitsAfterItHasClosed) {
  struct Row {
    const char *lower, *upper, *named;
  };
  for (const Row& row : {Row{"1", "32768", "32768"},
                         {"1", "32767.5", "32767.5"},
                         {"-32769", "1", "-32769"},
                         {"1", "1e400", "1e400"},
                         {"0", "99999", "99999"}}) {
    services_.messages.shown.clear();
    EXPECT_TRUE(Accept(row.lower, row.upper)) << row.named;
    ASSERT_EQ(Boxes().size(), 1U) << row.named;
    EXPECT_EQ(Boxes()[0].icon, MessageIcon::kExclamation);
    EXPECT_EQ(Boxes()[0].title, "Zanth Manager");
    EXPECT_NE(Boxes()[0].text.find(row.named), std::string::npos) << Boxes()[0].text;
  }
  ExpectNothingChanged();
}

}  // namespace
}  // namespace tessel
