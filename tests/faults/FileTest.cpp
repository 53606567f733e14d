// Files and folders that do not play along, met by a person at the whole control: what is told, and
// that the bytes on the disk and the text in the editor are all still there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "support/ChildProcess.h"
#include "support/FileLimits.h"
#include "support/RealWorld.h"

namespace tessel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kOld = "define A 1 // old\r\n";
const std::string kNew = "define A 2 // new\r\n";

class FileTest : public testing::Test {
 protected:
  FileTest() { GiveToOrdinaryUser(directory.Path()); }
  ~FileTest() override { ::chmod(directory.Path().c_str(), 0755); }

  /// A file of the ordinary user.
  std::string Put(const std::string& name, const std::string& bytes = kOld) {
    const std::string made = directory.Put(name, bytes);
    GiveToOrdinaryUser(made);
    GiveToOrdinaryUser(std::filesystem::path(made).parent_path());
    return made;
  }

  /// What a person sees after the work: the boxes, then whether the document counts as modified,
  /// and which of the two texts it holds. An editor whose text is lost is neither.
  static std::string State(Program& program) {
    const std::string text = program.Editor().Text();
    return program.ToldInALine() + (program.Modified() ? " [modified, " : " [unmodified, ") +
           (text == kNew   ? "new]"
            : text == kOld ? "old]"
            : text.empty() ? "empty]"
                           : "other]");
  }

  /// As an ordinary user, within some seconds: opens `path`, lets `meanwhile` happen, retypes the
  /// text and saves in place.
  template <class Meanwhile>
  std::string OpenAndSave(const std::string& path, Meanwhile meanwhile) {
    return AsOrdinaryUser([&] {
      ::alarm(20);
      Program program(store);
      program.Open(path);
      const std::string told = program.ToldInALine();
      if (!told.empty()) return told;
      meanwhile();
      program.Retype(kNew);
      program.Save();
      return State(program);
    });
  }
  std::string OpenAndSave(const std::string& path) {
    return OpenAndSave(path, [] {});
  }

  /// As an ordinary user: saves a new text under `path`.
  std::string SaveNewAs(const std::string& path) {
    return AsOrdinaryUser([&] {
      ::alarm(20);
      Program program(store);
      program.Retype(kNew);
      program.SaveAs(path);
      return State(program);
    });
  }

  std::string OpenOnly(const std::string& path) {
    return AsOrdinaryUser([&] {
      ::alarm(20);
      Program program(store);
      program.Open(path);
      const std::string tab = program.DocumentTab().caption;
      return State(program) + (tab.empty() ? "" : " under " + tab);
    });
  }

  /// What is no file is neither opened nor saved to, both within a second.
  void ExpectRefusedAtOnce(const std::string& path) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(OpenOnly(path),
              "Cannot open " + path + ": it is not a regular file. [unmodified, empty]");
    EXPECT_EQ(SaveNewAs(path),
              "Cannot save " + path + ": it is not a regular file. [modified, new]");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  }

  TempDirectory directory;
  TempDirectory settings;
  std::string store = settings / "settings.db";
};

// --- Read-only

TEST_F(FileTest, AReadOnlyFileOfOnesOwnIsMadeWritableByAnInPlaceSave) {
  const std::string path = Put("user.con");
  ::chmod(path.c_str(), 0444);
  EXPECT_EQ(OpenAndSave(path), " [unmodified, new]");
  EXPECT_EQ(BytesOf(path), kNew);
}

TEST_F(FileTest, AReadOnlyFileIsNotSavedOverUnderItsName) {
  const std::string path = Put("user.con");
  ::chmod(path.c_str(), 0444);
  EXPECT_EQ(SaveNewAs(path), "Cannot save " + path + ": the file is read-only. [modified, new]");
  EXPECT_EQ(BytesOf(path), kOld);
}

TEST_F(FileTest, AReadOnlyFileOfSomebodyElseStays) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  const std::string path = directory.Put("user.con", kOld);
  ::chmod(path.c_str(), 0444);
  EXPECT_EQ(OpenAndSave(path), "Cannot clear the read-only attribute of " + path +
                                   ": Operation not permitted. [modified, new]");
  EXPECT_EQ(BytesOf(path), kOld);
}

TEST_F(FileTest, AFileInAReadOnlyFolderIsSaved) {
  const std::string path = Put("user.con");
  ::chmod(directory.Path().c_str(), 0555);
  EXPECT_EQ(OpenAndSave(path), " [unmodified, new]");
  EXPECT_EQ(BytesOf(path), kNew);
}

TEST_F(FileTest, ANewFileCannotBeMadeInAReadOnlyFolder) {
  ::chmod(directory.Path().c_str(), 0555);
  const std::string path = directory / "new.con";
  EXPECT_EQ(SaveNewAs(path), "Cannot save " + path + ": Permission denied. [modified, new]");
  EXPECT_THAT(directory.Names(), IsEmpty());
}

TEST_F(FileTest, AFileThatMayNotBeReadOpensNothing) {
  const std::string path = Put("user.con");
  ::chmod(path.c_str(), 0000);
  EXPECT_EQ(OpenOnly(path), "Cannot open " + path + ": Permission denied. [unmodified, empty]");
}

// --- Gone, or another one

TEST_F(FileTest, AFolderThatVanishedIsToldAndTheTextStaysUntilItIsBack) {
  const std::string path = Put("mods/user.con");
  const std::string folder = directory / "mods";
  EXPECT_EQ(OpenAndSave(path, [&] { std::filesystem::remove_all(folder); }),
            "Cannot save " + path + ": No such file or directory. [modified, new]");
  EXPECT_FALSE(std::filesystem::exists(folder));
  // The same, and then somebody brings the folder back.
  Put("mods/user.con");
  EXPECT_EQ(AsOrdinaryUser([&] {
              Program program(store);
              program.Open(path);
              std::filesystem::remove_all(folder);
              program.Retype(kNew);
              program.Save();
              std::filesystem::create_directory(folder);
              program.Told();
              program.Save();
              return State(program);
            }),
            " [unmodified, new]");
  EXPECT_EQ(BytesOf(path), kNew);
}

TEST_F(FileTest, AFileThatOthersDeletedIsWrittenAnew) {
  const std::string path = Put("user.con");
  EXPECT_EQ(OpenAndSave(path, [&] { std::filesystem::remove(path); }), " [unmodified, new]");
  EXPECT_EQ(BytesOf(path), kNew);
  EXPECT_THAT(directory.Names(), ElementsAre("user.con"));
}

TEST_F(FileTest, AFolderInTheFilesPlaceIsNotTouched) {
  const std::string path = Put("user.con");
  EXPECT_EQ(OpenAndSave(path,
                        [&] {
                          std::filesystem::remove(path);
                          std::filesystem::create_directory(path);
                        }),
            "Cannot save " + path + ": it is a directory. [modified, new]");
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

// --- Links

TEST_F(FileTest, ALinkIsFollowedAndStays) {
  const std::string target = Put("real/user.con");
  const std::string link = directory / "link.con";
  std::filesystem::create_symlink(target, link);
  EXPECT_EQ(OpenAndSave(link), " [unmodified, new]");
  EXPECT_EQ(BytesOf(target), kNew);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
}

TEST_F(FileTest, ALoopOfLinksIsNoFileAndCannotBeSavedTo) {
  const std::string loop = directory / "a.con";
  std::filesystem::create_symlink("b.con", loop);
  std::filesystem::create_symlink("a.con", directory / "b.con");
  EXPECT_EQ(OpenOnly(loop), "File " + loop + " not found. [unmodified, empty]");
  EXPECT_EQ(SaveNewAs(loop),
            "Cannot save " + loop + ": Too many levels of symbolic links. [modified, new]");
  EXPECT_TRUE(std::filesystem::is_symlink(loop));
}

TEST_F(FileTest, AFileThatBecameALoopMeanwhileIsToldAndTheTextStays) {
  const std::string path = Put("user.con");
  EXPECT_EQ(OpenAndSave(path,
                        [&] {
                          std::filesystem::remove(path);
                          std::filesystem::create_symlink("user.con", path);
                        }),
            "Cannot save " + path + ": Too many levels of symbolic links. [modified, new]");
}

// --- No files at all

TEST_F(FileTest, APipeIsRefusedAtOnce) {
  const std::string pipe = directory / "pipe.con";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
  ::chmod(pipe.c_str(), 0666);
  ExpectRefusedAtOnce(pipe);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(FileTest, ASocketIsRefusedAtOnce) {
  const std::string socket = directory / "socket.con";
  ASSERT_EQ(::mknod(socket.c_str(), S_IFSOCK | 0666, 0), 0);
  ::chmod(socket.c_str(), 0666);
  ExpectRefusedAtOnce(socket);
  EXPECT_TRUE(std::filesystem::is_socket(socket));
}

TEST_F(FileTest, AFileThatBecameAPipeMeanwhileDoesNotBlock) {
  const std::string path = Put("user.con");
  EXPECT_EQ(OpenAndSave(path,
                        [&] {
                          std::filesystem::remove(path);
                          if (::mkfifo(path.c_str(), 0600) != 0)
                            throw std::runtime_error("no pipe");
                        }),
            "Cannot save " + path + ": it is not a regular file. [modified, new]");
}

TEST_F(FileTest, ADeviceIsRefusedAtOnce) {
  for (const std::string device : {"/dev/zero", "/dev/null", "/dev/full"}) {
    ExpectRefusedAtOnce(device);
  }
}

TEST_F(FileTest, AFolderIsNoFile) {
  const std::string folder = directory / "mods.con";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(OpenOnly(folder), "File " + folder + " not found. [unmodified, empty]");
  EXPECT_EQ(SaveNewAs(folder), "Cannot save " + folder + ": it is a directory. [modified, new]");
}

// --- A full disk

TEST_F(FileTest, AFullDiskLeavesTheOldFileAndTheTextInTheEditor) {
  const std::string path = Put("user.con");
  EXPECT_EQ(AsOrdinaryUser([&] {
              Program program(store);
              program.Open(path);
              program.Retype(kNew);
              LimitFileSize(3);
              program.Save();
              return State(program);
            }),
            "Cannot save " + path + ": File too large. [modified, new]");
  EXPECT_EQ(BytesOf(path), kOld);
  EXPECT_THAT(directory.Names(), ElementsAre("user.con"));
}

TEST_F(FileTest, AnErrorWhileSeveralAreOpenedKeepsThoseThatAreOpen) {
  const std::string first = Put("a.con");
  const std::string second = Put("b.con");
  ::chmod(second.c_str(), 0000);
  EXPECT_EQ(AsOrdinaryUser([&] {
              Program program(store);
              program.Open(first);
              program.Retype(kNew);
              program.fakes.fileDialogs.answers.push_back({{first, second}});
              program.Choose("mnuRtbPopupFileOpen");
              return State(program) + " " + program.DocumentTab().caption;
            }),
            "Cannot open " + second + ": Permission denied. [modified, new] a.con");
}

}  // namespace
}  // namespace tessel::test
