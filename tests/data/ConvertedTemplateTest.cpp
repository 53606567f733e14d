// The older user template after its conversion: what the newer dialect adds can be set.
#include <gtest/gtest.h>

#include <algorithm>

#include "converter/VersionEdits.h"
#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"

namespace tessel::test {
namespace {

struct ConvertedTemplate : testing::Test {
  ConvertedTemplate() {
    box.SetText(ReadDataFile("zmuser.dat"));
    results = ApplyVersionEdits(box);
  }

  ControlSet set;
  RichTextBox box{set, "rtbCon"};
  std::vector<StepResult> results;
};

TEST_F(ConvertedTemplate, IsChangedByEveryStepButTheOneWhoseTextStandsOnTwoLines) {
  for (const StepResult& result : results) {
    EXPECT_EQ(result.found && result.changed, result.step != 32) << "step " << result.step;
  }
}

TEST_F(ConvertedTemplate, DefinesTheNewerItemsBeforeAnythingElseNamesThem) {
  for (const char* name :
       {"BOSS4STRENGTH", "NEWBEASTSTRENGTH", "NEWBEASTSCRATCHAMOUNT", "DOLPHINSTRENGTH", "QSIZE",
        "SWEARFREQUENCY", "TRIPBOMBLASERMODE", "GROWCRYSTALAMMOAMOUNT", "MAXXSTRETCH",
        "MAXYSTRETCH", "MINXSTRETCH", "MINYSTRETCH"}) {
    const std::string define = std::string("define ") + name;
    EXPECT_EQ(box.Find(define, 0), box.Find(name, 0) - 7) << name;
  }
}

TEST_F(ConvertedTemplate, HasASlotInTheNewerDefsTemplateForEverySound) {
  const auto slots = Tokens(WithoutComments(ReadDataFile("zmdefsp.dat")));
  const auto tokens = Tokens(WithoutComments(box.Text()));
  for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
    if (tokens[i] != "definesound") continue;
    EXPECT_NE(std::find(slots.begin(), slots.end(), tokens[i + 1]), slots.end()) << tokens[i + 1];
  }
}

}  // namespace
}  // namespace tessel::test
