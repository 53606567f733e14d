// What the window does so that nothing is lost: backups, recovery, the documents of the last run.
#include <fcntl.h>
#include <sys/stat.h>

#include <QLabel>
#include <QStatusBar>
#include <QTreeWidget>
#include <csignal>
#include <cstdlib>

#include "HostFixture.h"
#include "host/BackupsDialog.h"
#include "host/ChangeNotice.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "host/RestoredText.h"
#include "host/Session.h"
#include "host/process/AbruptEnd.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kTwoSeconds{2000};
class Safekeeping : public HostTest {
 protected:
  std::string Offer() {
    const auto* offer = Run().window->findChild<RecoveryOffer*>();
    return offer == nullptr ? "" : offer->findChild<QLabel*>()->text().toStdString();
  }
  bool OfferVisible() {
    const auto* offer = Run().window->findChild<RecoveryOffer*>();
    return offer != nullptr && offer->isVisible();
  }
  void KeepNow() { ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow()); }
  std::vector<std::string> KeptTexts() const {
    std::vector<std::string> texts;
    const std::string folder = State() + "/recovery";
    if (!std::filesystem::exists(folder)) return texts;
    try {
      for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().filename();
        if (!name.starts_with("text-")) continue;
        const PrivateFolder run(entry.path().parent_path());
        const KeptBytes text = ReadKeptText(run, name);
        texts.push_back(text.path + ": " + text.bytes);
      }
    } catch (const std::runtime_error&) {
      return {"one of them went meanwhile"};
    }
    std::ranges::sort(texts);
    return texts;
  }
  bool KeptBecomes(const std::vector<std::string>& wanted) {
    return QTest::qWaitFor([&] { return KeptTexts() == wanted; }, kPatience);
  }
  Clock::duration DurationOfAFlushedWriting() {
    const auto start = Clock::now();
    PosixFiles().Write(directory_ / "probe", "x");
    return 2 * (Clock::now() - start);  // its folder and it
  }
  static void WriteTime(const std::string& path, int secondsFromNow) {
    const timespec times[2] = {{0, UTIME_OMIT}, {::time(nullptr) + secondsFromNow, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  }
  BackupsDialog* OpenBackups() {
    Run().MenuItem("&Backups...")->trigger();
    return Run().window->findChild<BackupsDialog*>();
  }

  std::string user_ = directory_.Put("user.con", "define A 1\r\n");
  std::string game_ = directory_.Put("game.con", "define G 1\r\n");
};

// --- Recovery

TEST_F(Safekeeping, AChangeIsKeptWithinTwoSecondsOfTheFirstOneUnderSteadyTyping) {
  constexpr milliseconds kPause{20};
  Run().window->OpenFiles({user_});
  // A machine that is slow, or busy with something else, makes everything late.
  Clock::duration late = DurationOfAFlushedWriting();
  const auto start = Clock::now();
  while (KeptTexts().empty()) {
    const auto before = Clock::now();
    ASSERT_LT(before - start - late, kTwoSeconds);
    Run().Editor(0).Type("x");
    QTest::qWait(kPause.count());
    late += Clock::now() - before - kPause;
  }
}

TEST_F(Safekeeping, AnUnchangedDocumentIsNotKept) {
  Run().window->OpenFiles({user_, game_});
  KeepNow();
  EXPECT_TRUE(KeptTexts().empty());
}

TEST_F(Safekeeping, ASavedDocumentIsNotKeptAnyMore) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  KeepNow();
  EXPECT_EQ(KeptTexts(), std::vector{user_ + ": // mine\r\ndefine A 1\r\n"});
  Run().SaveInPlace();
  EXPECT_TRUE(KeptBecomes({}));
}

TEST_F(Safekeeping, ATextIsKeptAtOnceWhenItsDocumentIsClosedWithNo) {
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Editor(0).Type("dropped ");
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Run().Tabs().Count(), 1);
  KeepNow();
  EXPECT_EQ(KeptTexts(), std::vector{user_ + ": dropped define A 1\r\n"});
}

TEST_F(Safekeeping, ATextIsKeptAtOnceWhenAFileIsLoadedOverIt) {
  Run().Editor(0).Type("typed before anything was open");
  Run().window->OpenFiles({user_});
  ASSERT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
  KeepNow();
  EXPECT_EQ(KeptTexts(), std::vector<std::string>{": typed before anything was open"});
}

TEST_F(Safekeeping, ATextIsKeptAtOnceWhenItIsLoadedAnew) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("mine ");
  Run().window->Control().Tessel().ReloadDocument();
  EXPECT_TRUE(KeptBecomes({user_ + ": mine define A 1\r\n"}));
}

TEST_F(Safekeeping, TextsThatMoveToOtherEditorsAreKeptOnceUnderTheirOwnPath) {
  Run().window->OpenFiles({user_, game_});
  Run().Editor(1).Type("changed ");
  KeepNow();
  Run().Tabs().Select(1);
  Run().Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Run().Tabs().Count(), 1);
  KeepNow();
  EXPECT_EQ(KeptTexts(), std::vector{game_ + ": changed define G 1\r\n"});
}

TEST_F(Safekeeping, AfterAKillTheTextIsOfferedAndRecoveredAsAChangedDocument) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  KeepNow();
  Restart();
  EXPECT_TRUE(OfferVisible());
  EXPECT_NE(Offer().find("user.con"), std::string::npos);
  ASSERT_TRUE(Run().Press<RecoveryOffer>("&Recover"));
  EXPECT_FALSE(OfferVisible());
  EXPECT_EQ(Run().Editor(0).Text(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_EQ(BytesOf(user_), "define A 1\r\n");
  EXPECT_EQ(KeptTexts().size(), 1U) << "the recovered text is kept again, the old one is gone";
  Run().Editor(0).Undo();
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
}

TEST_F(Safekeeping, TheOfferNamesFourTextsAndCountsTheOthers) {
  const auto keepOneOf = [&](const std::string& path) {
    RecoveryStore(State() + "/recovery").Keep(1, path, "text");
  };
  for (const char* path : {"/con/1.con", "/con/2.con", "/con/3.con", "/con/4.con"}) keepOneOf(path);
  Restart();
  for (const char* name : {"1.con", "2.con", "3.con", "4.con"}) {
    EXPECT_NE(Offer().find(name), std::string::npos) << Offer();
  }
  EXPECT_EQ(Offer().find("more"), std::string::npos) << Offer();
  keepOneOf("/con/5.con");
  Restart();
  EXPECT_NE(Offer().find(", 1 more."), std::string::npos) << Offer();
}

TEST_F(Safekeeping, AKillRightAfterRecoveringLosesNothing) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  KeepNow();
  Restart();
  Run().Press<RecoveryOffer>("&Recover");
  Restart();
  EXPECT_TRUE(OfferVisible());
}

TEST_F(Safekeeping, TheTextOfAFileThatIsGoneComesBackWithoutOne) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  KeepNow();
  std::filesystem::remove(user_);
  Restart();
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_EQ(Run().Editor(0).Text(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(1).tag, kUntitled);
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
}

TEST_F(Safekeeping, TheTextOfAFileThatCannotBeOpenedComesBackWithoutOne) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  KeepNow();
  std::filesystem::remove(user_);
  ASSERT_EQ(::mkfifo(user_.c_str(), 0600), 0);
  Restart();
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_EQ(CurrentEditor(Run().Controls()).Text(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(Run().Tabs().Selected()).tag, kUntitled);
  EXPECT_EQ(Run().Tabs().At(Run().Tabs().Selected()).image, kRedDot);
  EXPECT_EQ(Run().fakes.messages.shown.size(), 1U) << "it is said why";
  EXPECT_EQ(KeptTexts().size(), 1U);
}

TEST_F(Safekeeping, OfSeveralTextsOfOneFileTheNewestTakesItsDocument) {
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Editor(0).Type("old ");
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Controls().tbToolBar.Press("FileClose");
  Run().window->OpenFiles({user_});
  Run().Editor(1).SelectByHand(0, 0);
  Run().Editor(1).Type("new ");
  KeepNow();
  ASSERT_EQ(KeptTexts().size(), 2U);
  Restart();
  Run().Press<RecoveryOffer>("&Recover");
  std::map<std::string, std::string> shown;
  for (int tab = 1; tab <= Run().Tabs().Count(); ++tab) {
    shown[Run().Tabs().At(tab).tag] = Run().Editor(tab - 1).Text();
  }
  EXPECT_EQ(shown, (std::map<std::string, std::string>{{kUntitled, "old define A 1\r\n"},
                                                       {user_, "new define A 1\r\n"}}));
}

// What is opened next goes into the tab of a document without a path, and marks the last one as
// saved.
TEST_F(Safekeeping, ATextThatIsWronglyTakenForSavedIsKeptBeyondANormalEnd) {
  const std::string other = directory_.Put("other.con", "define O 1\r\n");
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Tabs().SetTabTag(1, "");
  ASSERT_EQ(Run().Tabs().At(1).tag, "");
  Run().Tabs().Select(2);
  Run().Editor(1).Type("precious ");
  Run().window->OpenFiles({other});
  ASSERT_EQ(Run().Tabs().At(2).image, kBlackDot);
  KeepNow();
  const std::vector kept{game_ + ": precious define G 1\r\n"};
  EXPECT_EQ(KeptTexts(), kept);
  CloseAndStartAgain();
  EXPECT_EQ(KeptTexts(), kept);
  EXPECT_TRUE(OfferVisible());
}

TEST_F(Safekeeping, ATextThatWasSavedAfterAllIsNotOffered) {
  const std::string other = directory_.Put("other.con", "define O 1\r\n");
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Tabs().SetTabTag(1, "");
  Run().Tabs().Select(2);
  Run().Editor(1).Type("precious ");
  Run().window->OpenFiles({other});
  Run().Tabs().Select(2);
  Run().SaveInPlace();
  ASSERT_EQ(BytesOf(game_), "precious define G 1\r\n");
  CloseAndStartAgain();
  EXPECT_FALSE(OfferVisible());
  EXPECT_TRUE(KeptTexts().empty());
}

TEST_F(Safekeeping, ATextThatIsLoadedOverComesBackBehindTheOpenedDocument) {
  Run().Editor(0).Type("my notes");
  Run().window->OpenFiles({user_});
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Tabs().Selected(), 1);
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(2).tag, kUntitled);
  EXPECT_EQ(Run().Tabs().At(2).image, kRedDot);
  EXPECT_EQ(Run().Editor(1).Text(), "my notes");
}

TEST_F(Safekeeping, ATextThatWasEmptiedDoesNotComeBack) {
  Run().Editor(0).Type("my notes");
  Run().Editor(0).SelectByHand(0, 8);
  Run().Editor(0).Type("");
  ASSERT_EQ(Run().Editor(0).Length(), 0);
  Run().window->OpenFiles({user_});
  EXPECT_EQ(Run().Tabs().Count(), 1);
}

TEST_F(Safekeeping, ATextThatWasClosedWithNoDoesNotComeBack) {
  Run().Editor(0).Type("my notes");
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Controls().tbToolBar.Press("FileClose");
  Run().window->OpenFiles({user_});
  EXPECT_EQ(Run().Tabs().Count(), 1);
}

TEST_F(Safekeeping, RecoveringTouchesNoDocumentWithChangesOfItsOwn) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("old ");
  KeepNow();
  Restart();
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("new ");
  Run().Press<RecoveryOffer>("&Recover");
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Editor(0).Text(), "new define A 1\r\n");
  EXPECT_EQ(Run().Editor(1).Text(), "old define A 1\r\n");
}

TEST_F(Safekeeping, RecoveringOverANewerFileIsAskedAbout) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("mine ");
  KeepNow();
  Restart();
  directory_.Put("user.con", "newer");
  WriteTime(user_, +60);
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Press<RecoveryOffer>("&Recover");
  ASSERT_EQ(Run().fakes.messages.shown.size(), 1U);
  EXPECT_NE(Run().fakes.messages.shown[0].text.find("user.con was changed at"), std::string::npos);
  EXPECT_EQ(Run().fakes.messages.shown[0].buttons, MessageButtons::kNoYes);
  EXPECT_EQ(Run().Tabs().At(1).tag, kUntitled);
  EXPECT_EQ(Run().Editor(0).Text(), "mine define A 1\r\n");
}

TEST_F(Safekeeping, RecoveringOverAFileOfOtherContentsIsAskedAboutWhateverItsTime) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("mine ");
  KeepNow();
  Restart();
  directory_.Put("user.con", "theirs");
  WriteTime(user_, -60);
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Press<RecoveryOffer>("&Recover");
  ASSERT_EQ(Run().fakes.messages.shown.size(), 1U);
  EXPECT_NE(Run().fakes.messages.shown[0].text.find("user.con was changed at"), std::string::npos);
  EXPECT_EQ(Run().Tabs().At(1).tag, kUntitled);
  EXPECT_EQ(BytesOf(user_), "theirs");
}

TEST_F(Safekeeping, AFileThatOthersChangeBehindADocumentThatIsDroppedIsAskedAboutToo) {
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Editor(0).Type("mine ");
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Run().Controls().tbToolBar.Press("FileClose");
  KeepNow();
  Restart();
  directory_.Put("user.con", "theirs");
  WriteTime(user_, -60);
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_EQ(Run().fakes.messages.shown.size(), 1U);
}

TEST_F(Safekeeping, AFileThatIsAsTheTextBeganIsNotAskedAboutWhateverItsTime) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("1 ");
  Run().SaveInPlace();
  Run().Editor(0).Type("2 ");
  KeepNow();
  Restart();
  WriteTime(user_, +60);
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Editor(0).Text(), "1 2 define A 1\r\n");
}

TEST_F(Safekeeping, AFileThatTheUserTookAsItIsIsNotAskedAbout) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("1 ");
  KeepNow();
  directory_.Put("user.con", "theirs");
  ASSERT_TRUE(Run().Press<ChangeNotice>("&Keep Mine"));
  Run().Editor(0).Type("2 ");
  KeepNow();
  Restart();
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
  EXPECT_EQ(Run().Editor(0).Text(), "1 2 define A 1\r\n");
}

// As an earlier version left it.
TEST_F(Safekeeping, ATextThatDoesNotSayWhatItBeganFromIsAskedAboutWhereTheFileIsYounger) {
  RecoveryStore(State() + "/recovery").Keep(1, user_, "mine");
  Restart();
  WriteTime(user_, +60);
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_EQ(Run().fakes.messages.shown.size(), 1U);
}

TEST_F(Safekeeping, ATextThatReplacesColouredOneIsBlack) {
  RichTextBox& editor = Run().Editor(0);
  editor.Type("x");
  editor.SelectByHand(0, 1);
  editor.SetSelColor(0x0000C8);
  ReplaceText(editor, "text");
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    EXPECT_EQ(run.colour, kBlack);
  }
}

TEST_F(Safekeeping, ATextOfWhichOnlyTheColoursChangeIsNotWrittenAgain) {
  const auto file = [&] {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(State() + "/recovery")) {
      struct stat status {};
      if (!entry.path().filename().string().starts_with("text-")) continue;
      if (::stat(entry.path().c_str(), &status) == 0) return status.st_ino;
    }
    return ino_t{0};
  };
  Run().Editor(0).Type("text");
  KeepNow();
  const ino_t written = file();
  Run().Editor(0).SelectByHand(0, 4);
  Run().Editor(0).SetSelColor(0x0000C8);
  KeepNow();
  EXPECT_EQ(file(), written);
}

TEST_F(Safekeeping, LaterAsksAgainAtTheNextStart) {
  Run().Editor(0).Type("text");
  KeepNow();
  Restart();
  Run().Press<RecoveryOffer>("&Later");
  EXPECT_FALSE(OfferVisible());
  CloseAndStartAgain();
  EXPECT_TRUE(OfferVisible());
}

TEST_F(Safekeeping, DiscardAsksOnceMoreAndThenForgets) {
  Run().Editor(0).Type("text");
  KeepNow();
  Restart();
  Run().fakes.messages.answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  Run().Press<RecoveryOffer>("&Discard");
  EXPECT_EQ(Run().fakes.messages.shown.at(0).buttons, MessageButtons::kNoYes);
  EXPECT_TRUE(OfferVisible());
  Run().Press<RecoveryOffer>("&Discard");
  EXPECT_FALSE(OfferVisible());
  EXPECT_TRUE(KeptTexts().empty());
}

TEST_F(Safekeeping, ANormalEndLeavesNothingToRecover) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("text");
  KeepNow();
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  CloseAndStartAgain();
  EXPECT_FALSE(OfferVisible());
  EXPECT_TRUE(KeptTexts().empty());
}

TEST_F(Safekeeping, AnEndThatTheUserCancelledKeepsTheText) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("text");
  KeepNow();
  Run().fakes.messages.answers = {MessageAnswer::kCancel};
  EXPECT_FALSE(Run().window->close());
  EXPECT_EQ(KeptTexts().size(), 1U);
}

// What the program does when the system tells it to end.
TEST(AbruptEndDeathTest, KeepsTheTextsAndEndsByTheSignal) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto endBy = [](int signal) {
    const AbruptEnd abruptEnd([] { std::fputs("kept", stderr); });
    std::raise(signal);
    QTest::qWait(kPatience);
  };
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    EXPECT_EXIT(endBy(signal), testing::KilledBySignal(signal), "kept");
  }
}

// The toolkit calls exit when the display has gone.
TEST(AbruptEndDeathTest, KeepsTheTextsWhenTheProgramExits) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto exits = [] {
    const std::string kept(100, 'k');  // too long to stand in the action itself
    const AbruptEnd abruptEnd([kept] { std::fputs(kept.c_str(), stderr); });
    std::exit(0);
  };
  EXPECT_EXIT(exits(), testing::ExitedWithCode(0), std::string(100, 'k'));
}

// --- Backups

TEST_F(Safekeeping, TheListOfBackupsHasANameAndRoomForItsTexts) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();
  const BackupsDialog* dialog = OpenBackups();
  const auto* list = dialog->findChild<QTreeWidget*>();
  EXPECT_EQ(list->accessibleName(), "Backups");
  for (const int column : {0, 1, 2}) {
    const QAbstractItemView& view = *list;
    EXPECT_GE(list->columnWidth(column), view.sizeHintForColumn(column)) << column;
  }
  EXPECT_EQ(dialog->size(), QSize(680, 380));
}

TEST_F(Safekeeping, TheBackupsAreNotShownWhileACommandRuns) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("2 ");
  Run().fakes.messages.meanwhile = [&] { EXPECT_EQ(OpenBackups(), nullptr); };
  Run().Controls().tbToolBar.Press("FileClose");
  EXPECT_EQ(Run().fakes.messages.shown.size(), 1U);
}

TEST_F(Safekeeping, TheBackupsOfTheCurrentFileComeFirst) {
  Run().window->OpenFiles({game_, user_});
  Run().Editor(1).Type("2 ");
  Run().SaveInPlace();
  Run().Tabs().Select(1);
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();
  Run().Tabs().Select(2);
  const auto* list = OpenBackups()->findChild<QTreeWidget*>();
  ASSERT_EQ(list->topLevelItemCount(), 2);
  EXPECT_EQ(list->topLevelItem(0)->text(0), "user.con");
  EXPECT_EQ(list->topLevelItem(1)->text(0), "game.con");
}

TEST_F(Safekeeping, ABackupComesBackAsAChangeThatUndoTakesBack) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();
  OpenBackups();
  ASSERT_TRUE(Run().Press<BackupsDialog>("&Open"));
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_EQ(BytesOf(user_), "2 define A 1\r\n") << "nothing is written before the user saves";
  Run().Editor(0).Undo();
  EXPECT_EQ(Run().Editor(0).Text(), "2 define A 1\r\n");
}

TEST_F(Safekeeping, ASaveThatHitTheWrongFileCanBePutRight) {
  Run().window->OpenFiles({game_, user_});
  Run().Editor(1).Type("2 ");
  Run().fakes.fileDialogs.answers = {{{game_}}};
  Run().fakes.messages.answers = {MessageAnswer::kYes};
  Run().Controls().tbToolBar.Press("FileSave");
  ASSERT_EQ(BytesOf(game_), "2 define A 1\r\n");
  OpenBackups();
  Run().Press<BackupsDialog>("&Open");
  EXPECT_EQ(CurrentEditor(Run().Controls()).Text(), "define G 1\r\n");
}

TEST_F(Safekeeping, ABackupThatCannotBeKeptIsToldAndTheFileIsSaved) {
  std::filesystem::create_directories(State());
  directory_.Put("state/ZanthMan/backups", "no folder");
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();
  EXPECT_EQ(BytesOf(user_), "2 define A 1\r\n");
  EXPECT_EQ(Run().problems.size(), 1U);
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
}

// --- The documents of the last run

TEST_F(Safekeeping, DocumentsAreNotReopenedUnlessTheUserWantsThat) {
  EXPECT_FALSE(Run().MenuItem("Reopen &Documents at Start")->isChecked());
  Run().window->OpenFiles({user_});
  CloseAndStartAgain();
  EXPECT_EQ(Run().Tabs().At(1).tag, "");
}

TEST_F(Safekeeping, DocumentsAreReopenedWithTheCurrentOneInFront) {
  Run().MenuItem("Reopen &Documents at Start")->trigger();
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  CloseAndStartAgain();
  EXPECT_TRUE(Run().MenuItem("Reopen &Documents at Start")->isChecked());
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Tabs().At(2).tag, game_);
  EXPECT_EQ(Run().Tabs().Selected(), 1);
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
}

TEST_F(Safekeeping, DocumentsAreReopenedAfterAKillToo) {
  Run().MenuItem("Reopen &Documents at Start")->trigger();
  Run().window->OpenFiles({user_});
  ASSERT_TRUE(QTest::qWaitFor([&] { return RememberedDocuments().paths == std::vector{user_}; },
                              kPatience));
  Restart();
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
}

TEST_F(Safekeeping, DocumentsThatAWindowClosedWithAreRememberedFromThenOn) {
  Run().MenuItem("Reopen &Documents at Start")->trigger();
  Run().window->OpenFiles({user_});
  Run().window->close();
  QTest::qWait(1500);
  EXPECT_EQ(RememberedDocuments().paths, std::vector{user_});
}

TEST_F(Safekeeping, AFileThatIsGoneIsSkippedWithANoticeAndNoBox) {
  Run().MenuItem("Reopen &Documents at Start")->trigger();
  Run().window->OpenFiles({user_, game_});
  Run().window->close();
  std::filesystem::remove(game_);
  Restart();
  EXPECT_EQ(Run().Tabs().Count(), 1);
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
  EXPECT_TRUE(Run().window->statusBar()->currentMessage().contains("game.con"));
}

}  // namespace
}  // namespace tessel::test
