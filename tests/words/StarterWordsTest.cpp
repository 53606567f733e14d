// The words that a user without words is offered.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "services/MemorySettingsStore.h"
#include "support/MemoryFiles.h"
#include "words/ScriptWords.h"
#include "words/StarterWords.h"

namespace tessel::test {
namespace {

class StarterWords : public testing::Test {
 protected:
  StarterWords() { files.files["/host/words.txt"] = "ai\t[name]\nif\t\n"; }

  std::string Offer() {
    OfferStarterWords(settings, files, "/host/words.txt");
    std::string words;
    for (const ScriptWord& word : ReadScriptWords(settings)) words += word.word + word.parameters;
    return words;
  }

  MemorySettingsStore settings;
  MemoryFiles files;
};

TEST_F(StarterWords, FillAnEmptyList) { EXPECT_EQ(Offer(), "ai[name]if"); }

TEST_F(StarterWords, AreNotMixedIntoAListOfOnesOwn) {
  WriteScriptWord(settings, {"own", "[x]"});
  EXPECT_EQ(Offer(), "own[x]");
}

TEST_F(StarterWords, AreOfferedOnceOnly) {
  Offer();
  DeleteScriptWord(settings, "ai");
  DeleteScriptWord(settings, "if");
  EXPECT_EQ(Offer(), "");
}

TEST_F(StarterWords, ChangeNothingWhenTheirFileIsMissingOrBad) {
  files.files["/host/words.txt"] = "no tab";
  EXPECT_EQ(Offer(), "");
  files.files.clear();
  EXPECT_EQ(Offer(), "");
  files.files["/host/words.txt"] = "ai\t\n";
  EXPECT_EQ(Offer(), "ai");
}

}  // namespace
}  // namespace tessel::test
