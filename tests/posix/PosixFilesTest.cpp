#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "base/RuntimeError.h"
#include "posix/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string AllBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

template <class Action>
std::string ErrorOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "no error";
}

class PosixFilesTest : public testing::Test {
 protected:
  std::string ReadError(const std::string& path) {
    return ErrorOf([&] { files.Read(path); });
  }
  std::string WriteError(const std::string& path) {
    return ErrorOf([&] { files.Write(path, "new"); });
  }

  TempDirectory directory;
  PosixFiles files;
};

// --- Bytes

TEST_F(PosixFilesTest, KeepsAll256BytesInBothDirections) {
  const std::string path = directory.Put("a.con", AllBytes());
  EXPECT_EQ(files.Read(path), AllBytes());
  files.Write(directory / "b.con", AllBytes() + "\r\n\n\r" + AllBytes());
  EXPECT_EQ(BytesOf(directory / "b.con"), AllBytes() + "\r\n\n\r" + AllBytes());
}

TEST_F(PosixFilesTest, WritesOverNoFileThatWasChangedSinceItWasRead) {
  const std::string path = directory.Put("a.con", "old");
  struct stat read {};
  ASSERT_EQ(::stat(path.c_str(), &read), 0);
  files.Write(path, "foreign");
  EXPECT_EQ(ErrorOf([&] { files.WriteUnlessChanged(path, "new", read); }),
            "Cannot save " + path + ": another program has changed it meanwhile.");
  EXPECT_EQ(BytesOf(path), "foreign");
  EXPECT_EQ(directory.Names().size(), 1U);
  ASSERT_EQ(::stat(path.c_str(), &read), 0);
  files.WriteUnlessChanged(path, "new", read);
  EXPECT_EQ(BytesOf(path), "new");
}

TEST_F(PosixFilesTest, MakesANewFileOnlyWhereNoneIs) {
  const std::string path = directory / "a.con";
  files.WriteNew(path, "first");
  EXPECT_EQ(ErrorOf([&] { files.WriteNew(path, "second"); }),
            "Cannot save " + path + ": it exists already.");
  EXPECT_EQ(BytesOf(path), "first");
}

TEST_F(PosixFilesTest, ReadsAndWritesAnEmptyFile) {
  const std::string path = directory.Put("a.con", "old");
  files.Write(path, "");
  EXPECT_EQ(BytesOf(path), "");
  EXPECT_EQ(files.Read(path), "");
}

TEST_F(PosixFilesTest, ReadsAFileWhoseSizeIsNotToldBeforehand) {
  EXPECT_THAT(files.Read("/proc/self/status"), HasSubstr("Pid:"));
}

TEST_F(PosixFilesTest, ReadsMoreThanOneCallCanTransfer) {
#ifdef TESSEL_SANITIZED
  GTEST_SKIP() << "takes too long with every access checked";
#endif
  // A file with a hole: it takes no room on the disk.
  const std::string path = directory.Put("big.con", "");
  constexpr off_t kSize = (off_t{1} << 31) + 5;
  ASSERT_EQ(::truncate(path.c_str(), kSize), 0);
  if (::sysconf(_SC_AVPHYS_PAGES) * ::sysconf(_SC_PAGESIZE) < kSize + (kSize / 4)) {
    GTEST_SKIP() << "not enough memory free for a file of 2 GiB";
  }
  EXPECT_EQ(files.Read(path).size(), static_cast<std::size_t>(kSize));
}

// --- What is no file

TEST_F(PosixFilesTest, NamesThePathAndTheReasonWhenAFileIsMissing) {
  EXPECT_EQ(ReadError(directory / "User.con"),
            "Cannot open " + directory / "User.con" + ": No such file or directory.");
}

TEST_F(PosixFilesTest, RefusesADirectory) {
  EXPECT_THAT(ReadError(directory.Path()), HasSubstr(": it is a directory."));
  EXPECT_THAT(WriteError(directory.Path()), HasSubstr(": it is a directory."));
}

TEST_F(PosixFilesTest, RefusesAPipeWithoutWaitingForItsOtherEnd) {
  const std::string path = directory / "pipe";
  ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
  EXPECT_THAT(ReadError(path), HasSubstr(": it is not a regular file."));
  EXPECT_THAT(WriteError(path), HasSubstr(": it is not a regular file."));
  EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST_F(PosixFilesTest, RefusesADevice) {
  EXPECT_EQ(ReadError("/dev/null"), "Cannot open /dev/null: it is not a regular file.");
  EXPECT_EQ(WriteError("/dev/null"), "Cannot save /dev/null: it is not a regular file.");
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(PosixFilesTest, RefusesANameWithANulInIt) {
  const std::string path = directory.Put("a.con", "old");
  const std::string longer = path + std::string("\0.txt", 5);
  EXPECT_THAT(ReadError(longer), HasSubstr("a.con?.txt: its name contains a NUL character."));
  EXPECT_THAT(WriteError(longer), HasSubstr("a.con?.txt: its name contains a NUL character."));
  EXPECT_THAT(files.Listing(longer), IsEmpty());
  EXPECT_EQ(BytesOf(path), "old");
}

TEST_F(PosixFilesTest, RefusesAFileThatItMayNotRead) {
  const std::string path = directory.Put("a.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  GiveToOrdinaryUser(path);
  EXPECT_EQ(AsOrdinaryUser([&] { return files.Read(path); }),
            "error: Cannot open " + path + ": Permission denied.");
}

TEST_F(PosixFilesTest, CannotSaveIntoADirectoryThatIsMissing) {
  EXPECT_EQ(WriteError(directory / "gone/a.con"),
            "Cannot save " + directory / "gone/a.con" + ": No such file or directory.");
}

TEST_F(PosixFilesTest, CannotSaveBehindAFile) {
  const std::string path = directory.Put("a.con", "old");
  EXPECT_THAT(WriteError(path + "/b.con"), HasSubstr("Not a directory."));
}

// --- Case

TEST_F(PosixFilesTest, FindsAFileWithoutRegardToCaseInEveryComponent) {
  directory.Put("Games/Mine/User.con", "text");
  EXPECT_EQ(files.Read(directory / "GAMES/MINE/USER.CON"), "text");
}

TEST_F(PosixFilesTest, ComparesByTheLettersOfWindows1252) {
  directory.Put("\xE4\x9A.con", "text");
  EXPECT_EQ(files.Read(directory / "\xC4\x8A.CON"), "text");
}

TEST_F(PosixFilesTest, FindsANameInUtf8ThatWasUpperCasedByteByByte) {
  directory.Put("M\xC3\xBCnze.con", "text");
  EXPECT_EQ(files.Read(directory / ToUpperText("M\xC3\xBCnze.con")), "text");
}

TEST_F(PosixFilesTest, PrefersTheExactName) {
  directory.Put("USER.CON", "upper");
  directory.Put("user.con", "lower");
  EXPECT_EQ(files.Read(directory / "user.con"), "lower");
  EXPECT_EQ(files.Read(directory / "USER.CON"), "upper");
}

TEST_F(PosixFilesTest, TakesTheFirstInByteOrderOfSeveralThatDifferInCase) {
  directory.Put("uSER.con", "third");
  directory.Put("User.con", "second");
  directory.Put("USer.con", "first");
  EXPECT_EQ(files.Read(directory / "USER.CON"), "first");
}

TEST_F(PosixFilesTest, GoesOnlyThroughDirectories) {
  directory.Put("GAMES", "a file");
  directory.Put("games/user.con", "text");
  EXPECT_EQ(files.Read(directory / "GAMES/USER.CON"), "text");
}

TEST_F(PosixFilesTest, SavesIntoTheFileThatDiffersInCase) {
  const std::string path = directory.Put("Games/User.con", "old");
  files.Write(directory / "GAMES/USER.CON", "new");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_THAT(directory.Names(), ElementsAre("Games"));
}

TEST_F(PosixFilesTest, MakesAMissingFileUnderItsNameAsWritten) {
  directory.Put("Games/other.con", "");
  files.Write(directory / "GAMES/User.con", "new");
  EXPECT_EQ(BytesOf(directory / "Games/User.con"), "new");
}

TEST_F(PosixFilesTest, MakesANewFileBesideOneThatDiffersInCase) {
  directory.Put("User.con", "old");
  files.WriteAs(directory / "user.con", "new");
  EXPECT_EQ(BytesOf(directory / "User.con"), "old");
  EXPECT_EQ(BytesOf(directory / "user.con"), "new");
}

TEST_F(PosixFilesTest, MakesNoNewFileInAFolderThatDiffersInCase) {
  directory.Put("Games/User.con", "old");
  EXPECT_THAT(ErrorOf([&] { files.WriteAs(directory / "games/User.con", "new"); }),
              HasSubstr("games/User.con: No such file or directory."));
  EXPECT_EQ(BytesOf(directory / "Games/User.con"), "old");
}

TEST_F(PosixFilesTest, ReplacesTheFileOfExactlyTheNameGiven) {
  const std::string path = directory.Put("User.con", "old");
  std::filesystem::create_symlink("User.con", directory / "link.con");
  files.WriteAs(directory / "link.con", "new");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "link.con"));
}

TEST_F(PosixFilesTest, UnderstandsRelativePaths) {
  directory.Put("User.con", "old");
  EXPECT_EQ(InChild([&] {
              std::filesystem::current_path(directory.Path());
              files.Write("USER.CON", "new");
              return files.Read("./user.CON") + files.Listing("*.con").at(0);
            }),
            "newUser.con");
}

// --- Listing

TEST_F(PosixFilesTest, ListsAFileAsItsName) {
  directory.Put("User.con", "");
  EXPECT_THAT(files.Listing(directory / "User.con"), ElementsAre("User.con"));
  EXPECT_THAT(files.Listing(directory / "USER.CON"), ElementsAre("User.con"));
}

TEST_F(PosixFilesTest, ListsNothingWhereNothingIs) {
  EXPECT_THAT(files.Listing(""), IsEmpty());
  EXPECT_THAT(files.Listing(directory / "User.con"), IsEmpty());
  EXPECT_THAT(files.Listing(directory / "gone/"), IsEmpty());
  EXPECT_THAT(files.Listing(directory / "gone/*"), IsEmpty());
}

TEST_F(PosixFilesTest, ListsTheFilesOfADirectoryOnlyWithASeparatorAtItsEnd) {
  directory.Put("games/b.con", "");
  directory.Put("games/a.con", "");
  directory.Put("games/inner/c.con", "");
  EXPECT_THAT(files.Listing(directory / "games"), IsEmpty());
  EXPECT_THAT(files.Listing(directory / "games/"), ElementsAre("a.con", "b.con"));
  EXPECT_THAT(files.Listing(directory / "GAMES/"), ElementsAre("a.con", "b.con"));
}

TEST_F(PosixFilesTest, ListsNothingForAnEmptyDirectoryOrOneOfDirectoriesOnly) {
  EXPECT_THAT(files.Listing(directory.Path() + "/"), IsEmpty());
  std::filesystem::create_directory(directory / "inner");
  EXPECT_THAT(files.Listing(directory.Path() + "/"), IsEmpty());
}

TEST_F(PosixFilesTest, ListsNothingForAFileWithASeparatorBehindIt) {
  EXPECT_THAT(files.Listing(directory.Put("User.con", "") + "/"), IsEmpty());
}

TEST_F(PosixFilesTest, MatchesStarAndQuestionMarkInTheLastComponent) {
  directory.Put("games/user1.con", "");
  directory.Put("games/User2.CON", "");
  directory.Put("games/user10.con", "");
  directory.Put("games/map.map", "");
  EXPECT_THAT(files.Listing(directory / "games/user?.con"), ElementsAre("User2.CON", "user1.con"));
  EXPECT_THAT(files.Listing(directory / "GAMES/*1*"), ElementsAre("user1.con", "user10.con"));
  EXPECT_THAT(files.Listing(directory / "games/*.txt"), IsEmpty());
  EXPECT_THAT(files.Listing(directory / "g*s/user1.con"), IsEmpty());
}

TEST_F(PosixFilesTest, TakesAnExistingNameWithAStarForItself) {
  directory.Put("a*.con", "star");
  directory.Put("ab.con", "");
  EXPECT_THAT(files.Listing(directory / "a*.con"), ElementsAre("a*.con"));
  EXPECT_EQ(files.Read(directory / "a*.con"), "star");
}

TEST_F(PosixFilesTest, ListsALinkToAFileButNotOneThatLeadsNowhere) {
  directory.Put("a.con", "");
  std::filesystem::create_symlink("a.con", directory / "link.con");
  std::filesystem::create_symlink("gone.con", directory / "nowhere.con");
  EXPECT_THAT(files.Listing(directory / "link.con"), ElementsAre("link.con"));
  EXPECT_THAT(files.Listing(directory / "nowhere.con"), IsEmpty());
  EXPECT_THAT(files.Listing(directory.Path() + "/"), ElementsAre("a.con", "link.con"));
}

// --- Saving

TEST_F(PosixFilesTest, LeavesNothingButTheFileBehind) {
  const std::string path = directory.Put("User.con", "old");
  files.Write(path, "new");
  EXPECT_THAT(directory.Names(), ElementsAre("User.con"));
}

TEST_F(PosixFilesTest, KeepsThePermissionsOfTheOldFile) {
  const std::string path = directory.Put("User.con", "old");
  for (const mode_t mode : {0600U, 0640U, 0664U, 0666U, 0755U}) {
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    files.Write(path, "new");
    EXPECT_EQ(ModeOf(path), mode);
  }
}

TEST_F(PosixFilesTest, KeepsTheOwnerWhenTheSuperuserSaves) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can keep another owner";
  const std::string path = directory.Put("User.con", "old");
  GiveToOrdinaryUser(path);
  files.Write(path, "new");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, kNobody);
  EXPECT_EQ(status.st_gid, kNobody);
}

TEST_F(PosixFilesTest, GivesANewFileThePermissionsOfTheUmask) {
  InChild([&] {
    ::umask(027);
    files.Write(directory / "new.con", "new");
    return std::string();
  });
  EXPECT_EQ(ModeOf(directory / "new.con"), 0640U);
}

TEST_F(PosixFilesTest, SavesUnderTheLongestNameThereIs) {
  const std::string path = directory.Put(std::string(255, 'n'), "old");
  files.Write(path, "new");
  EXPECT_EQ(BytesOf(path), "new");
}

TEST_F(PosixFilesTest, FollowsASymbolicLinkAndKeepsIt) {
  const std::string target = directory.Put("real/User.con", "old");
  std::filesystem::create_symlink("real/User.con", directory / "link.con");
  std::filesystem::create_symlink(directory / "link.con", directory / "second.con");
  files.Write(directory / "second.con", "new");
  EXPECT_EQ(BytesOf(target), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "link.con"));
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "second.con"));
  EXPECT_FALSE(std::filesystem::is_symlink(target));
}

TEST_F(PosixFilesTest, MakesTheFileThatADanglingLinkPointsTo) {
  std::filesystem::create_symlink("real.con", directory / "link.con");
  files.Write(directory / "link.con", "new");
  EXPECT_EQ(BytesOf(directory / "real.con"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "link.con"));
}

TEST_F(PosixFilesTest, RefusesLinksThatLeadInACircle) {
  std::filesystem::create_symlink("b.con", directory / "a.con");
  std::filesystem::create_symlink("a.con", directory / "b.con");
  EXPECT_THAT(WriteError(directory / "a.con"), HasSubstr("Too many levels of symbolic links."));
  EXPECT_THAT(ReadError(directory / "a.con"), HasSubstr("Too many levels of symbolic links."));
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "a.con"));
}

TEST_F(PosixFilesTest, RefusesAReadOnlyFileEvenForTheSuperuser) {
  const std::string path = directory.Put("User.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(WriteError(path), "Cannot save " + path + ": the file is read-only.");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST_F(PosixFilesTest, RefusesAFileThatOnlyOthersMayWrite) {
  const std::string path = directory.Put("User.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
  ASSERT_EQ(::chmod(directory.Path().c_str(), 0777), 0);
  if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  EXPECT_EQ(AsOrdinaryUser([&] {
              files.Write(path, "new");
              return "saved";
            }),
            "error: Cannot save " + path + ": Permission denied.");
  EXPECT_EQ(BytesOf(path), "old");
}

// --- Attributes

TEST_F(PosixFilesTest, MakesAReadOnlyFileWritableForItsOwner) {
  const std::string path = directory.Put("User.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  files.SetAttributesNormal(directory / "USER.CON");
  EXPECT_EQ(ModeOf(path), 0644U);
}

TEST_F(PosixFilesTest, LeavesAWritableOrMissingFileAlone) {
  const std::string path = directory.Put("User.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
  files.SetAttributesNormal(path);
  EXPECT_EQ(ModeOf(path), 0600U);
  EXPECT_NO_THROW(files.SetAttributesNormal(directory / "gone.con"));
  EXPECT_THAT(directory.Names(), ElementsAre("User.con"));
}

TEST_F(PosixFilesTest, TellsWhenTheAttributesCannotBeChanged) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  const std::string path = directory.Put("User.con", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(
      AsOrdinaryUser([&] {
        files.SetAttributesNormal(path);
        return "changed";
      }),
      "error: Cannot clear the read-only attribute of " + path + ": Operation not permitted.");
}

TEST_F(PosixFilesTest, SeparatesWithASlash) { EXPECT_EQ(files.Separator(), '/'); }

}  // namespace
}  // namespace tessel::test
