// What the conversion makes of the older user template: nothing in it is malformed.
#include <gtest/gtest.h>

#include <string>

#include "converter/VersionEdits.h"
#include "converter/modConVersion.h"
#include "data/DataFiles.h"
#include "language/Blocks.h"
#include "language/Definitions.h"
#include "language/Entries.h"
#include "language/Levels.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"

namespace tessel::language {
namespace {

std::string ConvertedUserTemplate() {
  ControlSet set;
  RichTextBox box(set, "rtbCon");
  box.SetText(test::ReadDataFile("zmuser.dat"));
  ApplyVersionEdits(box);
  return (box.Text() + "\r\n").append(NewSoundDefinitions());
}

class ConvertedTemplate : public testing::Test {
 protected:
  const std::string text_ = ConvertedUserTemplate();
  const Script script_{text_};
};

TEST_F(ConvertedTemplate, HasCompleteDefinitionsAndOneOfEachOfTheNewerItems) {
  for (const Definition& definition : Definitions(script_)) {
    EXPECT_TRUE(definition.IsComplete()) << script_.Text(definition.name);
  }
  for (const char* name : {"QSIZE", "SWEARFREQUENCY", "MAXXSTRETCH", "BOSS4STRENGTH"}) {
    EXPECT_EQ(DefinitionsOf(script_, name).size(), 1U) << name;
  }
}

TEST_F(ConvertedTemplate, HasFourEpisodesOfElevenCompleteLevels) {
  const auto levels = Levels(script_);
  EXPECT_EQ(levels.size(), 44U);
  for (const Level& level : levels) EXPECT_TRUE(level.IsComplete()) << script_.Text(level.title);
  EXPECT_EQ(LevelsOf(script_, 3, 10).size(), 1U);
}

TEST_F(ConvertedTemplate, HasCompleteTextsAndSounds) {
  const auto volumes = NumberedTexts(script_, Keyword::kDefineVolumeName);
  EXPECT_EQ(volumes.size(), 4U);
  for (const Keyword keyword :
       {Keyword::kDefineQuote, Keyword::kDefineVolumeName, Keyword::kDefineSkillName}) {
    for (const NumberedText& entry : NumberedTexts(script_, keyword)) {
      EXPECT_TRUE(entry.IsComplete()) << script_.Text(entry.range);
    }
  }
  for (const Sound& sound : Sounds(script_)) {
    EXPECT_TRUE(sound.IsComplete()) << script_.Text(sound.range);
  }
}

TEST_F(ConvertedTemplate, HasNothingThatIsNotTerminated) {
  EXPECT_FALSE(script_.UnterminatedComment().has_value());
  EXPECT_TRUE(Blocks(script_).strayClosers.empty());
}

}  // namespace
}  // namespace tessel::language
