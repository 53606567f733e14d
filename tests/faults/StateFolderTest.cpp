// The folder in which backups and unsaved texts are kept does not play along: what is told, and
// that neither the document nor what is kept already suffers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "faults/HostWorld.h"
#include "support/ChildProcess.h"
#include "support/TinyDisk.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kOldText = "define A 1 // old\r\n";
const std::string kNewText = "define A 2 // new\r\n";

class StateFolderTest : public testing::Test {
 protected:
  StateFolderTest() {
    std::filesystem::create_directory(home);
    for (const std::string& made : {directory.Path(), home, path}) GiveToOrdinaryUser(made);
  }
  ~StateFolderTest() override { ::chmod(home.c_str(), 0755); }

  /// Opens the file, retypes it, saves; then what the user was told, and whether the file has it.
  std::string Save() {
    ::alarm(20);
    HostedProgram program(settings / "settings.db", state);
    program.Open(path);
    program.Retype(kNewText);
    program.SaveAs(path);
    const std::string saved = BytesOf(path) == kNewText ? "saved" : "not saved";
    return program.EverythingTold() + " [" + saved + ", " +
           (program.Modified() ? "modified" : "unmodified") + "]";
  }
  /// Keeps a text for recovery; then what the user was told, and whether it is on the disk.
  std::string Keep() {
    ::alarm(20);
    RecoveryStore store(recovery);
    store.Keep(1, path, kNewText);
    const std::string kept = store.Flush() ? " [kept]" : " [not kept]";
    const std::string told = store.TakeProblem().value_or("");
    return told + (store.TakeProblem() ? " again" : "") + kept;
  }
  /// Both as an ordinary user, a line each.
  void ExpectBoth(const std::string& save, const std::string& keep) {
    EXPECT_EQ(AsOrdinaryUser([&] { return Save(); }), save);
    EXPECT_EQ(AsOrdinaryUser([&] { return Keep(); }), keep);
  }

  TempDirectory directory;
  TempDirectory settings;
  std::string home = directory / "state";
  std::string state = home + "/ZanthMan";
  std::string recovery = state + "/recovery";
  std::string path = directory.Put("user.con", kOldText);
};

TEST_F(StateFolderTest, ThatCannotBeWrittenToIsToldAndTheFileIsSaved) {
  ::chmod(home.c_str(), 0555);
  ExpectBoth("No backup of the old user.con was kept: Permission denied [saved, unmodified]",
             "Permission denied [not kept]");
}

TEST_F(StateFolderTest, ThatIsAFileIsToldAndTheFileIsSaved) {
  directory.Put("state/ZanthMan", "somebody's own");
  ExpectBoth("No backup of the old user.con was kept: Not a directory [saved, unmodified]",
             "Not a directory [not kept]");
  EXPECT_EQ(BytesOf(state), "somebody's own");
}

TEST_F(StateFolderTest, ThatIsAPipeIsToldAndNobodyWaits) {
  std::filesystem::create_directory(state);
  GiveToOrdinaryUser(state);
  for (const std::string name : {"backups", "recovery"}) {
    ASSERT_EQ(::mkfifo((state + "/" + name).c_str(), 0666), 0);
  }
  ExpectBoth("No backup of the old user.con was kept: Not a directory [saved, unmodified]",
             "Not a directory [not kept]");
}

TEST_F(StateFolderTest, ThatIsALinkIsNotFollowed) {
  const std::string elsewhere = directory / "elsewhere";
  std::filesystem::create_directories(elsewhere);
  std::filesystem::create_directory(state);
  for (const std::string& made : {elsewhere, state}) GiveToOrdinaryUser(made);
  for (const std::string name : {"backups", "recovery"}) {
    std::filesystem::create_directory_symlink(elsewhere, state + "/" + name);
  }
  ExpectBoth("No backup of the old user.con was kept: Not a directory [saved, unmodified]",
             "Not a directory [not kept]");
  EXPECT_TRUE(std::filesystem::is_empty(elsewhere));
}

TEST_F(StateFolderTest, OfSomebodyElseIsNotUsed) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs a folder of another user";
  for (const std::string name : {"backups", "recovery"}) {
    std::filesystem::create_directories(state + "/" + name);
    ::chmod((state + "/" + name).c_str(), 0777);
  }
  ExpectBoth(
      "No backup of the old user.con was kept: the folder belongs to somebody else [saved, "
      "unmodified]",
      "the folder belongs to somebody else [not kept]");
  EXPECT_TRUE(std::filesystem::is_empty(state + "/backups"));
  EXPECT_TRUE(std::filesystem::is_empty(recovery));
}

TEST_F(StateFolderTest, ThatVanishesBetweenSavesIsMadeAnew) {
  HostedProgram program(settings / "settings.db", state);
  program.Open(path);
  program.Retype("second");
  program.SaveAs(path);
  std::filesystem::remove_all(home);
  program.Retype("third");
  program.SaveAs(path);
  EXPECT_EQ(program.EverythingTold(), "");
  EXPECT_THAT(BackedUp(state), ElementsAre("second"));
  EXPECT_EQ(BytesOf(path), "third");
}

TEST_F(StateFolderTest, ThatBecomesUsableKeepsWhatItCouldNotKeepBefore) {
  EXPECT_EQ(AsOrdinaryUser([&] {
              ::alarm(20);
              ::chmod(home.c_str(), 0555);
              RecoveryStore store(recovery, std::chrono::milliseconds(20));
              store.Keep(1, path, kNewText);
              std::string result = store.Flush() ? "kept, " : "not kept, ";
              result += store.TakeProblem().value_or("nothing told") + ", ";
              ::chmod(home.c_str(), 0755);
              while (!store.Flush()) ::usleep(1000);
              return result + store.TakeProblem().value_or("kept later");
            }),
            "not kept, Permission denied, kept later");
}

// --- A full disk

TEST_F(StateFolderTest, OnAFullDiskIsToldAndWhatIsKeptThereStaysWhole) {
  const std::string big(200'000, 'b');
  const std::string result = InChild([&]() -> std::string {
    if (!MountTinyDisk(home, 128)) return "cannot mount";
    {
      HostedProgram program(settings / "settings.db", state);
      program.Open(path);
      program.Retype(big);
      program.SaveAs(path);  // the short text becomes a backup
      std::string told = program.EverythingTold();
      program.Retype("short again");
      program.SaveAs(path);  // the long one finds no room
      told += program.EverythingTold();
      if (told != "No backup of the old user.con was kept: No space left on device") return told;
      if (BytesOf(path) != "short again") return "not saved";
    }
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(state + "/backups")) {
      names.push_back(entry.path().filename());
    }
    return std::to_string(names.size()) + " file, " + BackedUp(state).at(0);
  });
  if (result == "cannot mount") GTEST_SKIP() << "only the superuser can mount a disk";
  EXPECT_EQ(result, "1 file, " + kOldText);
}

TEST_F(StateFolderTest, OnAFullDiskKeepsTheLastTextThatHadRoomAndTriesAgain) {
  const std::string big(200'000, 'b');
  const std::string result = InChild([&]() -> std::string {
    if (!MountTinyDisk(home, 300)) return "cannot mount";
    std::string steps;
    {
      RecoveryStore store(recovery, std::chrono::milliseconds(20));
      store.Keep(1, "/a", "one");
      if (!store.Flush()) return "no room at all";
      std::ofstream(home + "/filler") << std::string(150'000, 'f');
      store.Keep(1, "/a", big);
      steps = store.Flush() ? "kept" : store.TakeProblem().value_or("nothing told");
      // What a kill now would leave.
      std::filesystem::copy(state, directory / "killed", std::filesystem::copy_options::recursive);
      steps += "; " + Offered(directory / "killed").at(0);
      std::filesystem::remove(home + "/filler");
      while (!store.Flush()) ::usleep(1000);
    }
    const auto offered = Offered(state);
    return steps + "; " + (offered == std::vector{"/a: " + big} ? "the long text" : "another text");
  });
  if (result == "cannot mount") GTEST_SKIP() << "only the superuser can mount a disk";
  EXPECT_EQ(result, "No space left on device; /a: one; the long text");
}

// --- What lies in it

TEST_F(StateFolderTest, DamagedFilesGiveWhatIsLeftOfThemAndHinderNobody) {
  {
    HostedProgram program(settings / "settings.db", state);
    program.Open(path);
    for (const std::string text : {"second", "third", "fourth"}) {
      program.Retype(text);
      program.SaveAs(path);
    }
    RecoveryStore store(recovery);
    store.Keep(1, "/a", "first text");
    store.Keep(2, "/b", "second text");
    ASSERT_TRUE(store.Flush());
  }
  const BackupStore backups(state + "/backups");
  const std::string newest = state + "/backups/" + backups.List().at(0).name;
  std::filesystem::resize_file(newest, std::filesystem::file_size(newest) - 2);
  std::ofstream(state + "/backups/" + backups.List().at(1).name) << "garbage";
  EXPECT_THAT(BackedUp(state), ElementsAre("thi [damaged]", "garbage [damaged]", kOldText));

  for (const auto& run : std::filesystem::directory_iterator(recovery)) {
    const std::string text = run.path() / "text-1";
    std::filesystem::resize_file(text, std::filesystem::file_size(text) - 5);
  }
  EXPECT_THAT(Offered(state), ElementsAre("/a: first [damaged]", "/b: second text"));
}

TEST_F(StateFolderTest, PipesLinksAndFoldersInTheFilesPlacesAreLeftAlone) {
  {
    HostedProgram program(settings / "settings.db", state);
    program.Open(path);
    program.Retype(kNewText);
    program.SaveAs(path);
  }
  // Names as backups have them.
  const std::string name = BackupStore(state + "/backups").List().at(0).name;
  const auto like = [&](char first) { return state + "/backups/" + first + name.substr(1); };
  std::string firsts = "0123";
  std::erase(firsts, name[0]);
  ASSERT_EQ(::mkfifo(like(firsts[0]).c_str(), 0600), 0);
  std::filesystem::create_symlink("/etc/passwd", like(firsts[1]));
  std::filesystem::create_directory(like(firsts[2]));
  ::alarm(20);
  EXPECT_THAT(BackedUp(state), ElementsAre(kOldText));
  HostedProgram program(settings / "settings.db", state);
  program.Open(path);
  program.Retype(kOldText);
  program.SaveAs(path);
  ::alarm(0);
  EXPECT_EQ(program.EverythingTold(), "");
  EXPECT_THAT(BackedUp(state), ElementsAre(kNewText, kOldText));
}

TEST_F(StateFolderTest, ALockThatIsAPipeOrALinkIsNoReasonToWait) {
  std::filesystem::create_directories(recovery + "/run-1-00000000");
  ASSERT_EQ(::mkfifo((recovery + "/run-1-00000000/.lock").c_str(), 0600), 0);
  std::filesystem::create_directories(recovery + "/run-2-00000000");
  std::filesystem::create_symlink(path, recovery + "/run-2-00000000/.lock");
  ::alarm(20);
  EXPECT_THAT(Offered(state), ElementsAre("told: Too many levels of symbolic links"));
  ::alarm(0);
  EXPECT_EQ(BytesOf(path), kOldText);
}

}  // namespace
}  // namespace tessel::test
