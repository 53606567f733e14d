// No document is written over a file that is not its own without a question.
#include <sys/stat.h>

#include <QTest>

#include "HostFixture.h"
#include "base/ScopeGuard.h"
#include "host/ChangeNotice.h"
#include "host/DocumentGuard.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

class Guard : public HostTest {
 protected:
  void SaveAs(const std::string& path) {
    Run().fakes.fileDialogs.answers = {{{path}}};
    Run().Controls().tbToolBar.Press("FileSave");
  }
  std::vector<std::string> Asked() {
    std::vector<std::string> texts;
    for (const auto& box : Run().fakes.messages.shown) texts.push_back(box.text);
    return texts;
  }
  /// Once, and the Return key means No.
  bool AskedFor(const std::string& part) {
    const auto& shown = Run().fakes.messages.shown;
    return shown.size() == 1 && shown[0].text.find(part) != std::string::npos &&
           shown[0].buttons == MessageButtons::kNoYes;
  }
  bool Told(const std::string& part) {
    return Asked().size() == 1 && Asked()[0].find(part) != std::string::npos;
  }
  void Answer(MessageAnswer answer) { Run().fakes.messages.answers = {answer}; }
  DocumentList& Documents() { return Run().window->Control().Tessel().OpenDocuments(); }

  std::string user_ = directory_.Put("user.con", "define A 1\r\n");
  std::string game_ = directory_.Put("game.con", "define G 1\r\n");
};

TEST_F(Guard, ADocumentIsSavedIntoItsOwnFileWithoutAQuestion) {
  Run().window->OpenFiles({user_});
  for (const char* text : {"1 ", "2 "}) {
    Run().Editor(0).Type(text);
    Run().SaveInPlace();
  }
  SaveAs(user_);
  EXPECT_TRUE(Asked().empty());
  EXPECT_EQ(BytesOf(user_), "1 2 define A 1\r\n");
}

TEST_F(Guard, ASaveOverAnotherFileIsAskedAboutWithSizesAndTime) {
  Run().window->OpenFiles({user_});
  SaveAs(game_);
  ASSERT_TRUE(AskedFor("game.con already exists (12 bytes, changed "));
  EXPECT_NE(Asked()[0].find("with this document (12 bytes)?"), std::string::npos);
  EXPECT_EQ(BytesOf(game_), "define G 1\r\n");
  EXPECT_EQ(Documents().Current().Path(), user_) << "as after a cancelled dialog";
  Answer(MessageAnswer::kYes);
  SaveAs(game_);
  EXPECT_EQ(BytesOf(game_), "define A 1\r\n");
  EXPECT_EQ(Documents().Current().Path(), game_);
}

TEST_F(Guard, ASaveOverAFileThatWasOpenBeforeIsAskedAboutAndDone) {
  Run().window->OpenFiles({user_, game_});
  Run().Controls().tbToolBar.Press("FileClose");
  directory_.Put("game.con", "theirs, and longer");
  Answer(MessageAnswer::kYes);
  SaveAs(game_);
  EXPECT_TRUE(AskedFor("game.con already exists (18 bytes, changed "));
  EXPECT_EQ(BytesOf(game_), "define A 1\r\n");
}

TEST_F(Guard, AnAnswerDoesNotHoldForWhatTheFileHasBecomeMeanwhile) {
  Run().window->OpenFiles({user_});
  Run().fakes.messages.meanwhile = [this] { directory_.Put("game.con", "theirs, and longer"); };
  Answer(MessageAnswer::kYes);
  SaveAs(game_);
  EXPECT_EQ(BytesOf(game_), "theirs, and longer");
  ASSERT_EQ(Asked().size(), 2U);
  EXPECT_NE(Asked()[1].find("another program has changed it meanwhile"), std::string::npos);
  EXPECT_EQ(Documents().Current().Path(), user_);
}

TEST_F(Guard, ASaveToANameThatDiffersInCaseMakesANewFileAndIsNotAskedAbout) {
  Run().window->OpenFiles({user_});
  SaveAs(directory_ / "GAME.CON");
  EXPECT_TRUE(Asked().empty());
  EXPECT_EQ(BytesOf(game_), "define G 1\r\n");
  EXPECT_EQ(BytesOf(directory_ / "GAME.CON"), "define A 1\r\n");
}

TEST_F(Guard, ASaveToANewNameIsNotAskedAbout) {
  Run().window->OpenFiles({user_});
  SaveAs(directory_ / "new.con");
  EXPECT_TRUE(Asked().empty());
  EXPECT_EQ(BytesOf(directory_ / "new.con"), "define A 1\r\n");
}

TEST_F(Guard, ASaveOverTheFileOfAnotherTabIsAskedAbout) {
  Run().window->OpenFiles({user_, game_});
  SaveAs(user_);
  EXPECT_TRUE(AskedFor("user.con is open in another tab"));
  EXPECT_EQ(BytesOf(user_), "define A 1\r\n");
}

TEST_F(Guard, TheOtherTabSeesThatItsFileWasReplaced) {
  Run().window->OpenFiles({user_, game_});
  Run().Editor(1).Type("longer ");
  Answer(MessageAnswer::kYes);
  SaveAs(user_);
  ASSERT_EQ(BytesOf(user_), "longer define G 1\r\n");
  Run().Tabs().Select(1);
  Run().Editor(0).Type("mine ");
  Run().fakes.messages.shown.clear();
  Run().SaveInPlace();
  EXPECT_TRUE(Told("has not been saved"));
  EXPECT_EQ(BytesOf(user_), "longer define G 1\r\n");
}

TEST_F(Guard, AReadOnlyFileIsAskedAbout) {
  ::chmod(user_.c_str(), 0444);
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("1 ");
  Run().SaveInPlace();
  EXPECT_TRUE(AskedFor("user.con is read-only"));
  EXPECT_EQ(BytesOf(user_), "define A 1\r\n");
  EXPECT_EQ(ModeOf(user_), 0444U);
  Answer(MessageAnswer::kYes);
  Run().SaveInPlace();
  EXPECT_EQ(BytesOf(user_), "1 define A 1\r\n");
}

TEST_F(Guard, AFileThatIsOpenIsShownWhateverTheSpellingOfItsPath) {
  std::filesystem::create_directory(directory_ / "sub");
  std::filesystem::create_symlink(user_, directory_ / "link.con");
  std::filesystem::create_hard_link(user_, directory_ / "second.con");
  Run().window->OpenFiles({user_, game_});
  for (const char* spelling : {"sub/../user.con", "USER.CON", "link.con", "second.con"}) {
    Run().Tabs().Select(2);
    Run().window->OpenFiles({directory_ / spelling});
    EXPECT_EQ(Run().Tabs().Count(), 2) << spelling;
    EXPECT_EQ(Run().Tabs().Selected(), 1) << spelling;
  }
}

TEST_F(Guard, ARecentFileIsTheOneThatWasOpenedNotOneOfAnotherCase) {
  directory_.Put("Mods/User.con", "the other");
  const std::string mine = directory_.Put("mods/user.con", "mine");
  Run().window->OpenFiles({mine});
  Run().Controls().tbToolBar.Press("FileClose");
  Run().window->OpenFiles({ToUpperText(mine)});
  EXPECT_EQ(Run().Editor(0).Text(), "mine");
  EXPECT_EQ(Documents().Current().Path(), mine);
}

TEST_F(Guard, WhereSeveralFilesMayBeMeantItAsks) {
  const std::string first = directory_.Put("Mods/User.con", "first");
  const std::string second = directory_.Put("mods/user.con", "second");
  Run().fakes.messages.answers = {MessageAnswer::kNo, MessageAnswer::kNo};
  Run().window->OpenFiles({directory_ / "MODS/USER.CON"});
  EXPECT_TRUE(Documents().Current().IsFree());
  Run().fakes.messages.answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  Run().window->OpenFiles({directory_ / "MODS/USER.CON"});
  EXPECT_EQ(Asked().size(), 4U);
  EXPECT_EQ(Documents().Current().Path(), second);
}

// The recent list keeps the names in capital letters, and another file is called like that.
TEST_F(Guard, ARecentFileIsAskedAboutWhereAnotherIsInCapitalLetters) {
  const auto before = std::filesystem::current_path();
  const ScopeGuard back([&] { std::filesystem::current_path(before); });
  std::filesystem::current_path(directory_.Path());
  directory_.Put("MODS/USER.CON", "the other");
  directory_.Put("MODS/user.con", "mine");
  Run().window->OpenFiles({"MODS/user.con"});
  ASSERT_EQ(Run().Editor(0).Text(), "mine");
  EXPECT_TRUE(Asked().empty());
  Run().Controls().tbToolBar.Press("FileClose");
  Answer(MessageAnswer::kYes);
  Run().window->OpenFiles({"MODS/USER.CON"});
  EXPECT_TRUE(AskedFor("Open MODS/user.con?"));
  EXPECT_EQ(Run().Editor(0).Text(), "mine");
  Run().Controls().tbToolBar.Press("FileClose");
  Run().fakes.messages.answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  Run().window->OpenFiles({"MODS/USER.CON"});
  EXPECT_EQ(Run().Editor(0).Text(), "the other");
  Run().Controls().tbToolBar.Press("FileClose");
  Run().fakes.messages.shown.clear();
  Run().window->OpenFiles({"MODS/USER.CON"});
  EXPECT_TRUE(Asked().empty()) << "now it is the one that was opened last";
}

TEST_F(Guard, OneFileOfAnotherSpellingIsOpenedByItsOwnPath) {
  Run().window->OpenFiles({directory_ / "USER.CON"});
  EXPECT_EQ(Documents().Current().Path(), user_);
  EXPECT_TRUE(Asked().empty());
}

TEST_F(Guard, RecordsMoveWithTheirDocuments) {
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Documents().Current().Path(), game_);
  directory_.Put("game.con", "theirs, and longer");
  Run().Editor(0).Type("mine ");
  Run().SaveInPlace();
  EXPECT_TRUE(Told("has not been saved"));
  EXPECT_EQ(BytesOf(game_), "theirs, and longer");
}

TEST_F(Guard, TheRealNamesOfTheLastFiftyFilesAreRemembered) {
  for (int i = 0; i <= 50; ++i) {
    Run().window->OpenFiles({directory_.Put("file" + std::to_string(i) + ".con", "text")});
    Run().Controls().tbToolBar.Press("FileClose");
  }
  EXPECT_EQ(settings_.GetAllSettings("HostPaths").size(), 50U);
}

}  // namespace
}  // namespace tessel::test
