// The program as it is started from a shell, without anybody at it: for a picture of its window.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QImage>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/ChildProcess.h"
#include "support/ProgramUnderTest.h"
#include "support/RunProgram.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class HostProgram : public testing::Test {
 protected:
  /// Runs the program; returns its exit status.
  int Start(std::vector<std::string> arguments) {
    return RunProgram(program, std::move(arguments), [&] {
      for (const char* name : {"HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        ::setenv(name, directory.Path().c_str(), 1);
      }
      ::setenv("ZANTHMAN_STORE", (directory / "settings.db").c_str(), 1);
      ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
      return std::freopen(errors.c_str(), "w", stderr) != nullptr;
    });
  }
  bool Said(const std::string& part) const {
    return BytesOf(errors).find(part) != std::string::npos;
  }

  const std::string program = ProgramUnderTest("TESSEL_HOST_PROGRAM", TESSEL_HOST_PROGRAM);
  TempDirectory directory;
  std::string errors = directory / "errors";
  std::string picture = directory / "picture.png";
  std::string user = directory.Put("user.con", "define A 1\r\n");
};

TEST_F(HostProgram, LeavesAPictureOfTheSizeAskedFor) {
  EXPECT_EQ(Start({"--screenshot", picture, "--size", "760x520", "--dark", user}), 0);
  EXPECT_EQ(QImage(QString::fromStdString(picture)).size(), QSize(760, 520));
  EXPECT_EQ(BytesOf(user), "define A 1\r\n");
}

TEST_F(HostProgram, LeavesAPictureOfAsManyPixelsAsASizeCanName) {
  EXPECT_EQ(Start({"--screenshot", picture, "--size", "1000x99"}), 0);
  EXPECT_EQ(QImage(QString::fromStdString(picture)).width(), 1000);
}

TEST_F(HostProgram, SaysThatThePictureCannotBeWritten) {
  EXPECT_EQ(Start({"--screenshot", directory / "none/picture.png"}), 1);
  EXPECT_TRUE(Said("zanth-manager: cannot write the picture")) << BytesOf(errors);
}

TEST_F(HostProgram, LeavesAFileThatIsNoPicture) {
  const std::string name = "user.png";
  const std::string other = directory.Put("game.con", "define G 1\r\n");
  directory.Put(name, "notes");
  std::filesystem::create_symlink(other, directory / "link.png");
  for (const std::string& file : {user, directory / name, directory / "link.png"}) {
    EXPECT_EQ(Start({"--screenshot", file}), 1);
    EXPECT_TRUE(Said("zanth-manager: cannot write the picture " + file)) << BytesOf(errors);
  }
  EXPECT_EQ(BytesOf(user), "define A 1\r\n");
  EXPECT_EQ(BytesOf(other), "define G 1\r\n");
  EXPECT_EQ(BytesOf(directory / name), "notes");
}

TEST_F(HostProgram, WritesOverAPictureOfTheSameKindOnly) {
  const std::string small = directory / "small.jpg";
  ASSERT_TRUE(QImage(10, 10, QImage::Format_RGB32).save(QString::fromStdString(small)));
  std::filesystem::copy(small, picture);
  EXPECT_EQ(Start({"--screenshot", picture, "--size", "760x520"}), 1);
  EXPECT_EQ(BytesOf(picture), BytesOf(small));
  EXPECT_EQ(Start({"--screenshot", small, "--size", "760x520"}), 0);
  EXPECT_EQ(QImage(QString::fromStdString(small)).size(), QSize(760, 520));
}

TEST_F(HostProgram, WritesOverAnEmptyFile) {
  directory.Put("picture.png", "");
  EXPECT_EQ(Start({"--screenshot", picture, "--size", "760x520"}), 0);
  EXPECT_EQ(QImage(QString::fromStdString(picture)).size(), QSize(760, 520));
}

TEST_F(HostProgram, DoesNotWaitAtAPipe) {
  ASSERT_EQ(::mkfifo(picture.c_str(), 0600), 0);
  EXPECT_EQ(Start({"--screenshot", picture}), 1);
  EXPECT_TRUE(Said("zanth-manager: cannot write the picture " + picture)) << BytesOf(errors);
}

TEST_F(HostProgram, WritesDownWhatABoxWouldHaveSaid) {
  EXPECT_EQ(Start({"--screenshot", picture, directory / "none.con"}), 1);
  EXPECT_TRUE(Said("zanth-manager: File " + directory / "none.con" + " not found."))
      << BytesOf(errors);
}

// As an ordinary user, from a folder that this user could write to.
TEST_F(HostProgram, WritesNothingIntoTheWorkingFolderWhateverTheHome) {
  const TempDirectory work;
  const std::string locked = directory / "locked";
  std::filesystem::create_directory(locked);
  ::chmod(locked.c_str(), 0555);
  for (const auto& folder : {directory.Path(), work.Path()}) GiveToOrdinaryUser(folder);
  using Variables = std::vector<std::pair<const char*, const char*>>;
  const std::vector<Variables> homes = {
      {{"HOME", nullptr}},
      {{"HOME", ""}},
      {{"HOME", "home"}},
      {{"HOME", "/no/such/home"}},
      {{"HOME", locked.c_str()}},
      {{"HOME", nullptr}, {"XDG_STATE_HOME", "state"}, {"XDG_CONFIG_HOME", "config"}},
      {{"HOME", "/"}, {"XDG_STATE_HOME", "/proc/none"}, {"XDG_CONFIG_HOME", "./config"}},
  };
  for (const Variables& home : homes) {
    SCOPED_TRACE(home[0].second == nullptr ? "no HOME" : home[0].second);
    const int status = RunProgram(program, {"--screenshot", picture, user}, [&] {
      for (const char* name : {"HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME", "ZANTHMAN_STORE"}) {
        ::unsetenv(name);
      }
      for (const auto& [name, value] : home) {
        if (value != nullptr) ::setenv(name, value, 1);
      }
      ::setenv("XDG_RUNTIME_DIR", directory.Path().c_str(), 1);
      ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
      BecomeOrdinaryUser();
      return ::chdir(work.Path().c_str()) == 0 && std::freopen("/dev/null", "w", stderr) != nullptr;
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(std::filesystem::remove(picture));
    EXPECT_TRUE(work.Names().empty()) << work.Names()[0];
  }
}

TEST_F(HostProgram, SaysThatTheSettingsStoreCannotBeUsed) {
  const std::string store = directory.Put("damaged.db", "no database, but long enough to be read");
  EXPECT_EQ(Start({"--screenshot", picture, "--store", store}), 0);
  EXPECT_TRUE(Said("zanth-manager: Cannot use the settings store " + store)) << BytesOf(errors);
  EXPECT_EQ(BytesOf(store), "no database, but long enough to be read");
}

// A terminal obeys ESC and what follows it; the other mark turns the reading direction round.
TEST_F(HostProgram, WritesNoControlCharactersOfNames) {
  const std::string bad = "a\x1b[31m\n\x7f\xc2\x9b\xe2\x80\xae.con";
  const std::string shown = "a?[31m????.con";
  std::filesystem::create_directory(directory / bad);
  const std::string store = directory.Put(bad + ".db", "no database, but long enough to be read");
  const std::vector<std::vector<std::string>> starts = {
      {directory / bad},
      {"--" + bad},
      {"--host-dir", directory / "no" + bad},
      {"--screenshot", directory / "none/" + bad},
      {"--screenshot", picture, directory / "none" + bad},
      {"--screenshot", picture, "--store", store}};
  for (const auto& arguments : starts) {
    Start(arguments);
    EXPECT_TRUE(Said(shown)) << BytesOf(errors);
    EXPECT_FALSE(Said("\x1b") || Said("\x7f") || Said("\xc2\x9b") || Said("\xe2\x80\xae"))
        << arguments[0];
  }
}

TEST_F(HostProgram, RefusesASizeThatIsNone) {
  for (const std::string size : {"big", "0x500", "700", "99999x1"}) {
    EXPECT_EQ(Start({"--screenshot", picture, "--size", size}), 2) << size;
    EXPECT_TRUE(Said("a size is WIDTHxHEIGHT in pixels")) << BytesOf(errors);
  }
  EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST_F(HostProgram, RefusesADirectoryAsAFile) {
  EXPECT_EQ(Start({directory.Path()}), 2);
  EXPECT_TRUE(Said("is a directory")) << BytesOf(errors);
}

TEST_F(HostProgram, RefusesOptionsThatExcludeEachOther) {
  const std::vector<std::vector<std::string>> pairs = {{"--dark", "--light"},
                                                       {"--automation", "--screenshot=" + picture},
                                                       {"--automation", "--no-automation"}};
  for (const auto& pair : pairs) {
    EXPECT_EQ(Start(pair), 2) << pair[1];
    EXPECT_TRUE(Said("exclude each other")) << BytesOf(errors);
  }
}

TEST_F(HostProgram, SaysWhereToReadOnWhenItDoesNotKnowAnOption) {
  for (const std::string option : {"--no-such", "-x", "--store", "--host-dir=/no/such"}) {
    EXPECT_EQ(Start({option}), 2) << option;
    EXPECT_TRUE(Said("Run 'zanth-manager --help' for details.")) << BytesOf(errors);
  }
}

}  // namespace
}  // namespace tessel::test
