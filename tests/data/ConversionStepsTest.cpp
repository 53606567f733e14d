// Every edit of the version conversion finds, in the older user template, the line that it looks
// for, and in that line the value that it changes.
#include <gtest/gtest.h>

#include <algorithm>

#include "converter/VersionEdits.h"
#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"
#include "text/TextSearch.h"

namespace tessel::test {
namespace {

class OlderUserTemplate : public testing::Test {
 protected:
  Position Word(std::string_view wanted, Position start = 0) const {
    return FindText(text_, wanted, start, std::ssize(text_), kFindWholeWord);
  }
  Position Anywhere(std::string_view wanted, Position start = 0) const {
    return FindText(text_, wanted, start, std::ssize(text_), kFindDefault);
  }
  /// From a position to the end of its line.
  std::string RestOfLine(Position at) const {
    const auto start = static_cast<std::size_t>(at);
    return text_.substr(start, text_.find('\r', start) - start);
  }

  const std::string text_ = ReadDataFile("zmuser.dat");
};

// One step's text stands on two lines, where no step finds it.
constexpr int kStepThatFindsNothing = 32;

TEST_F(OlderUserTemplate, HoldsWhatEveryEditOfTheConversionChanges) {
  ControlSet set;
  RichTextBox box(set, "rtbCon");
  box.SetText(text_);
  for (const VersionEdit& edit : VersionEdits()) {
    const EditOutcome outcome = edit.apply(box, edit);
    EXPECT_EQ(outcome.found && outcome.changed, edit.step != kStepThatFindsNothing)
        << "step " << edit.step << ": " << edit.sought;
  }
}

TEST_F(OlderUserTemplate, IsAUserFileThatIsNotConvertedYet) {
  EXPECT_EQ(Anywhere("QSIZE"), kNotFound);
  EXPECT_NE(Anywhere("definelevelname"), kNotFound);
}

TEST_F(OlderUserTemplate, OpensItsHeadingInABlockCommentOfSeveralLines) {
  const auto at = Word("/*");
  EXPECT_EQ(at, 0);
  EXPECT_EQ(RestOfLine(at), "/*");
  EXPECT_EQ(RestOfLine(Word("*/")), "*/");
}

TEST_F(OlderUserTemplate, HoldsASecondSwearFrequencyLineBehindTheFirst) {
  const auto first = Word("define SWEARFREQUENCY");
  EXPECT_EQ(first, Anywhere("SWEARFREQUENCY") - std::ssize(std::string("define ")));
  EXPECT_NE(Word("define SWEARFREQUENCY", first + 1), kNotFound);
}

TEST_F(OlderUserTemplate, PutsALineOfAsterisksRightBelowTheMiscHeading) {
  const auto heading = Word("// MISC GAME SETTINGS");
  const auto below = Word("// ******************", heading + 1);
  EXPECT_EQ(below, heading + std::ssize(RestOfLine(heading)) + 2);
}

TEST_F(OlderUserTemplate, EndsTheStartUpListWithFreezerHurtOwner) {
  const auto list = Word("gamestartup");
  const auto end = Word("FREEZERHURTOWNER", list);
  ASSERT_NE(end, kNotFound);
  EXPECT_EQ(RestOfLine(end), "FREEZERHURTOWNER");
  EXPECT_EQ(RestOfLine(end + std::ssize(RestOfLine(end)) + 2), "");
  EXPECT_LT(Word("define FREEZERHURTOWNER"), list);
}

TEST_F(OlderUserTemplate, ChangesPitchesOnTheLinesOfTheSoundsThemselves) {
  for (const VersionEdit& edit : VersionEdits()) {
    if (edit.step != 36 && edit.step != 43 && edit.step != 45) continue;
    const auto name = Word(edit.sought);
    const auto numbers = Word(edit.text, name + 1);
    EXPECT_LT(numbers, name + std::ssize(RestOfLine(name))) << edit.sought;
  }
}

bool IsNumber(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

TEST_F(OlderUserTemplate, HoldsANumberOnceInALineWhereEveryOneOfItsKindIsReplaced) {
  int lines = 0;
  for (const VersionEdit& edit : VersionEdits()) {
    const auto line = Word(edit.sought);
    if (edit.replacement.empty() || !IsNumber(edit.text) || line == kNotFound) continue;
    const auto rest = RestOfLine(line);
    EXPECT_EQ(rest.find(edit.text), rest.rfind(edit.text)) << rest;
    ++lines;
  }
  EXPECT_GE(lines, 8);
}

TEST_F(OlderUserTemplate, TellsTheNumberOfSoundsOnTwoLinesAndHoldsThatMany) {
  const auto first = Word("Zanth may have up to 348 different sounds, currently there");
  ASSERT_NE(first, kNotFound);
  EXPECT_EQ(RestOfLine(first), "Zanth may have up to 348 different sounds, currently there");
  const auto second = Word("are aprox. 254 slots used.");
  EXPECT_GT(second, first);

  const auto tokens = Tokens(WithoutComments(text_));
  EXPECT_EQ(std::count(tokens.begin(), tokens.end(), "definesound"), 254);
}

TEST_F(OlderUserTemplate, ListsTheNumbersOfASoundInABlockComment) {
  const auto note = Word("- The 5th number is volume adjustment.");
  const auto open = text_.rfind("/*", static_cast<std::size_t>(note));
  EXPECT_GT(text_.find("*/", open), static_cast<std::size_t>(note));
}

}  // namespace
}  // namespace tessel::test
