// The check of the open documents behind the user's back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScriptTest.h"
#include "host/problems/LiveCheck.h"
#include "words/ScriptWords.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kOpenComment = "define A 1\r\n/* never closed\r\n";
constexpr const char* kStrayEnd = "define B 1\r\nends\r\n";

class LiveChecks : public ScriptTest {
 protected:
  std::vector<std::string> Found() {
    std::vector<std::string> found;
    for (const Problem& problem : problems_.All()) {
      const language::Range range = problems_.RangeOf(problem);
      found.push_back(std::to_string(Index(problem.slot)) + ":" + std::to_string(problem.line) +
                      ":" + std::to_string(range.begin) + " " +
                      std::string(problem.finding.rule->id));
    }
    return found;
  }
  bool Finds(std::size_t count) {
    return QTest::qWaitFor([&] { return problems_.All().size() == count; }, kPatience);
  }
  /// So long that a check would have come to its end.
  void WaitForACheck() { QTest::qWait(3 * static_cast<int>(LiveCheck::kPause.count())); }
  TesselWidget& Control() { return Shown().Control(); }

  Preferences& preferences_ = Shown().Wishes();
  OpenScripts scripts_{Run().Controls().rtbCon};
  ProblemList problems_;
  LiveCheck check_{
      {Control(), scripts_, preferences_, settings_, TESSEL_TEST_DATA_DIR}, problems_, nullptr};
};

TEST_F(LiveChecks, FindsWhatIsWrongOnceTheUserPauses) {
  Open(std::string(kOpenComment));
  EXPECT_THAT(Found(), IsEmpty());
  ASSERT_TRUE(Finds(1));
  EXPECT_THAT(Found(), ElementsAre("0:2:12 open-comment"));
}

TEST_F(LiveChecks, FollowsWhatIsTyped) {
  Open(std::string(kOpenComment));
  ASSERT_TRUE(Finds(1));
  Text().SelectByHand(Text().Length(), 0);
  QTest::keyClicks(&View(), "*/");
  EXPECT_TRUE(Finds(0));
}

TEST_F(LiveChecks, MovesWithAnEditInFrontOfItUntilTheNextCheck) {
  Open(std::string(kOpenComment));
  ASSERT_TRUE(Finds(1));
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&View(), "// ");
  EXPECT_THAT(Found(), ElementsAre("0:2:15 open-comment"));
}

TEST_F(LiveChecks, TakesAllDocumentsForOneMod) {
  Open(std::string("define A 1\r\n"), std::string("define A 2\r\n"));
  ASSERT_TRUE(Finds(1));
  EXPECT_THAT(Found(), ElementsAre("1:1:0 doubled-define"));
}

TEST_F(LiveChecks, LeavesTheEmptyStartTabOut) {
  WaitForACheck();
  EXPECT_THAT(Found(), IsEmpty());
  QTest::keyClicks(&View(), "/*");
  EXPECT_TRUE(Finds(1));
}

TEST_F(LiveChecks, DropsWhatWasFoundInATextThatHasChangedSince) {
  Open(std::string(kOpenComment));
  check_.CheckNow();
  Text().SetText("define A 1\r\n");
  int taken = 0;
  const Subscription counted = problems_.Replaced.Connect([&] { ++taken; });
  WaitForACheck();
  EXPECT_EQ(taken, 0);
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(LiveChecks, ForgetsTheProblemsOfADocumentThatIsClosed) {
  Open(std::string(kOpenComment), std::string(kStrayEnd));
  ASSERT_TRUE(Finds(2));
  Select(0);
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_THAT(Found(), ElementsAre("0:2:12 stray-closer"));
  WaitForACheck();
  EXPECT_THAT(Found(), ElementsAre("0:2:12 stray-closer"));
}

TEST_F(LiveChecks, IsNothingForAUserWhoDoesNotWantIt) {
  Open(std::string(kOpenComment));
  ASSERT_TRUE(Finds(1));
  preferences_.Set(Wish::kLiveCheck, 0);
  EXPECT_THAT(Found(), IsEmpty());
  EXPECT_EQ(check_.Now(), LiveChecking::kOff);
  Text().Type("// ");
  WaitForACheck();
  EXPECT_THAT(Found(), IsEmpty());
  check_.CheckNow();
  EXPECT_TRUE(Finds(1));
  preferences_.Set(Wish::kLiveCheck, 1);
  EXPECT_THAT(Found(), IsEmpty());
  EXPECT_TRUE(Finds(1));
}

TEST_F(LiveChecks, WaitsToBeAskedWhereTheTextsAreLong) {
  std::string text = kOpenComment;
  while (std::ssize(text) <= LiveCheck::kMostBytes) text += std::string(100, 'x') + "\r\n";
  Open(text);
  WaitForACheck();
  EXPECT_EQ(check_.Now(), LiveChecking::kTooLong);
  EXPECT_THAT(Found(), IsEmpty());
  check_.CheckNow();
  EXPECT_TRUE(Finds(1));
  Select(0);
  Text().SetText(kOpenComment);
  EXPECT_TRUE(QTest::qWaitFor([&] { return check_.Now() == LiveChecking::kOn; }, kPatience));
  EXPECT_TRUE(Finds(1));
}

TEST_F(LiveChecks, GoesByTheUsersWords) {
  Open(std::string("state s\r\n  unknowncommand 5\r\nends\r\nstate s\r\n"));
  ASSERT_TRUE(Finds(1));
  WriteScriptWord(settings_, {"addammo", "[weapon] [amount]"});
  Run().Controls().lstWords.AddItem("addammo");
  EXPECT_TRUE(Finds(2)) << testing::PrintToString(Found());
}

TEST_F(LiveChecks, TakesMissingLinesFromTheTemplates) {
  Open(PosixFiles().Read(std::string(TESSEL_TEST_DATA_DIR) + "/zmuserp.dat"));
  WaitForACheck();
  ASSERT_THAT(Found(), IsEmpty());
  const auto at = Text().Bytes().find("define TROOPSTRENGTH");
  const auto end = Text().Bytes().find('\n', at) + 1;
  Text().EditByHand(static_cast<Position>(at), static_cast<Position>(end - at), "");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !problems_.All().empty(); }, kPatience));
  EXPECT_TRUE(problems_.All().front().finding.fix) << testing::PrintToString(Found());
}

TEST_F(LiveChecks, ListsOnlyTheFirstOfVeryManyProblems) {
  std::string text;
  for (std::size_t i = 0; i <= kMostProblems; ++i) text += "ends\r\n";
  Open(text);
  ASSERT_TRUE(Finds(kMostProblems));
  EXPECT_FALSE(problems_.IsComplete());
}

TEST_F(LiveChecks, ChangesNoText) {
  Open(std::string(kOpenComment));
  ASSERT_TRUE(Finds(1));
  EXPECT_EQ(Text().Text(), kOpenComment);
  EXPECT_FALSE(Documents().Current().Modified());
}

}  // namespace
}  // namespace tessel::test
