// Files that another program changes while they are open.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <fstream>

#include "host/ChangeNotice.h"
#include "host/HostFixture.h"
#include "host/MainWindow.h"
#include "posix/PosixFiles.h"
#include "support/FakeServices.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class ChangedOutside : public testing::Test {
 protected:
  ChangedOutside() {
    window_.OfferBackups(backups_);
    WriteOutside("define A 1\r\n");
    window_.show();
    window_.OpenFiles({path_});
    QTest::qWait(300);  // the notice has looked at the file
  }

  void WriteOutside(const std::string& text) { std::ofstream(path_, std::ios::binary) << text; }
  std::string OnDisk() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static Services With(FakeServices& fakes, Files& files) {
    const Services s = fakes.Get();
    return {.messages = s.messages,
            .fileDialogs = s.fileDialogs,
            .forms = s.forms,
            .clipboard = s.clipboard,
            .settings = s.settings,
            .pointer = s.pointer,
            .files = files,
            .random = s.random,
            .focus = s.focus,
            .loop = s.loop,
            .hostDirectory = s.hostDirectory};
  }

  ChangeNotice& Notice() { return *window_.findChild<ChangeNotice*>(); }
  void Press(const QString& caption) {
    for (auto* button : Notice().findChildren<QPushButton*>()) {
      if (button->text() == caption) return button->click();
    }
    FAIL() << "no button " << caption.toStdString();
  }
  HostedControls& Controls() { return window_.Control().Tessel().Controls(); }
  RichTextBox& Editor() { return Controls().rtbCon[0]; }
  void SaveInPlace() { Controls().mnuRtbPopup.Choose("mnuRtbPopupFileSave"); }

  TempDirectory directory_;
  std::string path_ = directory_ / "user.con";
  FakeServices fakes_;
  PosixFiles plainFiles_;
  GuardedFiles files_{plainFiles_};
  BackupStore backups_{directory_ / "backups"};
  WidgetMap widgets_;
  MainWindow window_{With(fakes_, files_), widgets_, files_};
};

TEST_F(ChangedOutside, NobodyIsToldOfAFileThatIsAsItWas) { EXPECT_FALSE(Notice().isVisible()); }

TEST_F(ChangedOutside, TheWindowSaysSo) {
  WriteOutside("define A 2 // theirs\r\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  EXPECT_EQ(Editor().Text(), "define A 1\r\n");
}

TEST_F(ChangedOutside, ReloadTakesTheirText) {
  WriteOutside("define A 2 // theirs\r\n");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  Press("Rel&oad");
  EXPECT_EQ(Editor().Text(), "define A 2 // theirs\r\n");
  EXPECT_EQ(Controls().tbsRtb.At(1).image, kBlackDot);
  EXPECT_FALSE(Notice().isVisible());
}

TEST_F(ChangedOutside, ReloadAsksBeforeItDropsOwnChanges) {
  Editor().Type("// mine\r\n");
  WriteOutside("define A 2 // theirs\r\n");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  fakes_.messages.answers = {MessageAnswer::kNo};
  Press("Rel&oad");
  ASSERT_EQ(fakes_.messages.shown.size(), 1U);
  EXPECT_EQ(fakes_.messages.shown[0].buttons, MessageButtons::kNoYes);
  EXPECT_EQ(Editor().Text(), "// mine\r\ndefine A 1\r\n");
  EXPECT_TRUE(Notice().isVisible());
  EXPECT_TRUE(backups_.List().empty());
}

TEST_F(ChangedOutside, ReloadKeepsOwnChangesAsABackup) {
  Editor().Type("// mine\r\n");
  WriteOutside("define A 2 // theirs\r\n");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  fakes_.messages.answers = {MessageAnswer::kYes};
  Press("Rel&oad");
  EXPECT_EQ(Editor().Text(), "define A 2 // theirs\r\n");
  ASSERT_EQ(backups_.List().size(), 1U);
  EXPECT_EQ(backups_.Read(backups_.List()[0]).bytes, "// mine\r\ndefine A 1\r\n");
}

TEST_F(ChangedOutside, ReloadLeavesATextThatCannotBeKept) {
  directory_.Put("backups", "no folder");
  Editor().Type("// mine\r\n");
  WriteOutside("define A 2 // theirs\r\n");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  fakes_.messages.answers = {MessageAnswer::kYes};
  Press("Rel&oad");
  EXPECT_EQ(Editor().Text(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(fakes_.messages.shown.size(), 2U);
}

TEST_F(ChangedOutside, TheirTextIsNotWrittenOver) {
  Editor().Type("// mine\r\n");
  WriteOutside("define A 2 // theirs\r\n");
  SaveInPlace();
  EXPECT_EQ(OnDisk(), "define A 2 // theirs\r\n");
  EXPECT_EQ(Controls().tbsRtb.At(1).image, kRedDot);
  ASSERT_EQ(fakes_.messages.shown.size(), 1U);
  EXPECT_NE(fakes_.messages.shown[0].text.find("another program has changed the file"),
            std::string::npos);
}

TEST_F(ChangedOutside, KeepMineLetsTheDocumentBeSaved) {
  Editor().Type("// mine\r\n");
  WriteOutside("define A 2 // theirs\r\n");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  Press("&Keep Mine");
  EXPECT_FALSE(Notice().isVisible());
  SaveInPlace();
  EXPECT_EQ(OnDisk(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(Controls().tbsRtb.At(1).image, kBlackDot);
}

TEST_F(ChangedOutside, AFileThatIsGoneCanBeWrittenAnew) {
  ASSERT_EQ(std::remove(path_.c_str()), 0);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  SaveInPlace();
  EXPECT_EQ(OnDisk(), "define A 1\r\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Notice().isVisible(); }, kPatience));
}

TEST_F(ChangedOutside, AFileThatIsGoneIsNotTakenForOneOfAnotherSpelling) {
  const std::string other = directory_.Put("USER.CON", "another file");
  Editor().Type("// mine\r\n");
  std::filesystem::remove(path_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
  EXPECT_TRUE(Notice().findChild<QLabel*>()->text().contains("gone"));
  Press("&Keep Mine");
  SaveInPlace();
  EXPECT_EQ(OnDisk(), "// mine\r\ndefine A 1\r\n");
  EXPECT_EQ(BytesOf(other), "another file");
}

TEST_F(ChangedOutside, ARefusedSaveShowsTheBarWhereTheFolderWasExchanged) {
  const std::string path = directory_.Put("mod/game.con", "define G 1\r\n");
  directory_.Put("other/game.con", "define G 2 // theirs\r\n");
  window_.OpenFiles({path});
  Controls().rtbCon[1].Type("// mine\r\n");
  QTest::qWait(500);  // the bar has looked, and nothing else makes it look again
  std::filesystem::rename(directory_ / "mod", directory_ / "old");
  std::filesystem::rename(directory_ / "other", directory_ / "mod");
  SaveInPlace();
  EXPECT_EQ(BytesOf(path), "define G 2 // theirs\r\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Notice().isVisible(); }, kPatience));
}

TEST_F(ChangedOutside, ASmallFileIsOpenedWithoutATalk) {
  std::vector<std::string> told;
  files_.TellLongWork([&](const std::string& work) { told.push_back(work); });
  window_.Control().Tessel().ReloadDocument();
  EXPECT_TRUE(told.empty());
}

TEST_F(ChangedOutside, WorkOnALargeFileIsToldOf) {
  std::vector<std::string> told;
  files_.TellLongWork([&](const std::string& work) { told.push_back(work); });
  WriteOutside(std::string(9 << 20, 'x'));
  window_.Control().Tessel().ReloadDocument();
  EXPECT_EQ(told, (std::vector<std::string>{"Opening user.con...", ""}));
  told.clear();
  SaveInPlace();
  EXPECT_EQ(told, (std::vector<std::string>{"Saving user.con...", ""}));
}

TEST_F(ChangedOutside, ASaveOfOnesOwnIsNoChange) {
  Editor().Type("// mine\r\n");
  SaveInPlace();
  QTest::qWait(500);
  EXPECT_FALSE(Notice().isVisible());
}

}  // namespace
}  // namespace tessel::test
