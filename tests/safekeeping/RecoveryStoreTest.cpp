// Unsaved texts on disk, without a window.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>

#include "safekeeping/RecoveryStore.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class Recovery : public testing::Test {
 protected:
  static std::optional<std::string> OnDisk(const std::string& path) {
    if (!std::filesystem::exists(path)) return std::nullopt;
    return BytesOf(path);
  }
  AbandonedTexts Abandoned() const { return {folder_, OnDisk}; }
  std::vector<std::string> Offered() const {
    std::vector<std::string> texts;
    const AbandonedTexts abandoned = Abandoned();
    for (const auto& text : abandoned.Texts())
      texts.push_back(text.path + ": " + text.bytes + (text.damaged ? " [damaged]" : ""));
    return texts;
  }
  std::vector<std::string> Runs() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      const std::string name = entry.path().filename();
      if (!name.starts_with('.')) names.push_back(name);
    }
    return names;
  }
  /// What a program leaves that keeps these texts and is killed.
  template <class Action>
  void KilledAfter(Action action) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
      RecoveryStore store(folder_);
      action(store);
      const char done = store.Flush() ? 'y' : 'n';
      if (::write(ends[1], &done, 1) != 1) ::_exit(1);
      for (;;) ::pause();
    }
    char done = 0;
    EXPECT_EQ(::read(ends[0], &done, 1), 1);
    EXPECT_EQ(done, 'y');
    EXPECT_TRUE(Offered().empty()) << "the program still lives";
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
  }

  TempDirectory directory_;
  std::string folder_ = directory_ / "state/ZanthMan/recovery";
};

TEST_F(Recovery, ThereIsNothingToOfferAtTheFirstStart) { EXPECT_TRUE(Offered().empty()); }

TEST_F(Recovery, TheTextOfAKilledProgramIsOffered) {
  const std::string path = directory_.Put("user.con", "old");
  KilledAfter([&](RecoveryStore& store) {
    store.Keep(1, path, std::string("new\0\x80", 5));
    store.Keep(2, "", "untitled");
  });
  const AbandonedTexts abandoned = Abandoned();
  ASSERT_EQ(abandoned.Texts().size(), 2U);
  EXPECT_EQ(abandoned.Texts()[0].path, path);
  EXPECT_EQ(abandoned.Texts()[0].bytes, std::string("new\0\x80", 5));
  EXPECT_NEAR(static_cast<double>(abandoned.Texts()[0].seconds),
              static_cast<double>(::time(nullptr)), 10);
  EXPECT_EQ(abandoned.Texts()[1].path, "");
}

TEST_F(Recovery, ATextSaysWhatItBeganFromWhereThatIsKnown) {
  KilledAfter([&](RecoveryStore& store) {
    store.Keep(1, "/1 2\n3", "known", 18'446'744'073'709'551'615U);
    store.Keep(2, "/4 5\n6", "7 8\n9");
  });
  const AbandonedTexts abandoned = Abandoned();
  const auto& texts = abandoned.Texts();
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].base, 18'446'744'073'709'551'615U);
  EXPECT_EQ(texts[1].base, std::nullopt);
  EXPECT_EQ(texts[0].path, "/1 2\n3");
  EXPECT_EQ(texts[1].path, "/4 5\n6");
  EXPECT_EQ(texts[1].bytes, "7 8\n9");
  EXPECT_FALSE(texts[0].damaged || texts[1].damaged);
}

TEST_F(Recovery, ATextReplacesTheOneOfTheSameDocument) {
  KilledAfter([&](RecoveryStore& store) {
    store.Keep(1, "/a", "first");
    store.Flush();
    store.Keep(1, "/a", "second");
  });
  EXPECT_EQ(Offered(), std::vector<std::string>{"/a: second"});
}

TEST_F(Recovery, ATextThatWasDroppedIsNotOffered) {
  KilledAfter([&](RecoveryStore& store) {
    store.Keep(1, "/a", "saved");
    store.Keep(2, "/b", "unsaved");
    store.Flush();
    store.Drop(1);
  });
  EXPECT_EQ(Offered(), std::vector<std::string>{"/b: unsaved"});
}

TEST_F(Recovery, ATextThatIsSafeOnTheDiskIsNotOfferedAndGoes) {
  const std::string path = directory_.Put("user.con", "text");
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, path, "text"); });
  EXPECT_TRUE(Offered().empty());
  EXPECT_TRUE(Runs().empty());
}

TEST_F(Recovery, ATextIsOfferedUntilItIsDiscarded) {
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, "/a", "text"); });
  EXPECT_EQ(Offered().size(), 1U);
  EXPECT_EQ(Offered().size(), 1U);
  Abandoned().Discard();
  EXPECT_TRUE(Offered().empty());
  EXPECT_TRUE(Runs().empty());
}

TEST_F(Recovery, AClockThatWasPutBackHidesNoText) {
  { RecoveryStore(folder_).Keep(1, "/a", "kept"); }
  const std::string run = folder_ + "/" + Runs().at(0);
  WriteKeptText(PrivateFolder(run), "text-2", {"/b", 9'000'000'000, 6}, "future");
  WriteKeptText(PrivateFolder(run), "text-3", {"/c", -5, 4}, "past");
  { RecoveryStore(folder_).Keep(1, "/d", "later"); }
  EXPECT_THAT(Offered(),
              testing::UnorderedElementsAre("/a: kept", "/b: future", "/c: past", "/d: later"));
}

TEST_F(Recovery, TwoProgramsAreNotOfferedTheSame) {
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, "/a", "text"); });
  const AbandonedTexts first = Abandoned();
  EXPECT_EQ(first.Texts().size(), 1U);
  EXPECT_TRUE(Offered().empty());
}

TEST_F(Recovery, ANormalEndLeavesNothing) {
  {
    RecoveryStore store(folder_);
    store.Keep(1, "/a", "text");
    store.Finish();
  }
  EXPECT_TRUE(Runs().empty());
}

TEST_F(Recovery, AnEndWithoutGoodByeLeavesTheTexts) {
  { RecoveryStore(folder_).Keep(1, "/a", "text"); }
  EXPECT_EQ(Offered(), std::vector<std::string>{"/a: text"});
}

TEST_F(Recovery, FilesAreForTheOwnersEyesAlone) {
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, "/a", "text"); });
  EXPECT_EQ(ModeOf(folder_), 0700U);
  const std::string run = folder_ + "/" + Runs().at(0);
  EXPECT_EQ(ModeOf(run), 0700U);
  for (const auto& entry : std::filesystem::directory_iterator(run)) {
    EXPECT_EQ(ModeOf(entry.path()), 0600U) << entry.path();
  }
}

TEST_F(Recovery, ALinkOfThatNameIsReplacedNotFollowed) {
  const std::string victim = directory_.Put("victim", "precious");
  {
    RecoveryStore store(folder_);
    const std::string run = folder_ + "/" + Runs().at(0);
    std::filesystem::create_symlink(victim, run + "/text-1");
    store.Keep(1, "/a", "text");
    EXPECT_TRUE(store.Flush());
  }
  EXPECT_EQ(BytesOf(victim), "precious");
  EXPECT_EQ(Offered(), std::vector<std::string>{"/a: text"});
}

TEST_F(Recovery, ALinkInARunsFolderIsNotRead) {
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, "/a", "text"); });
  const std::string run = folder_ + "/" + Runs().at(0);
  std::filesystem::copy(run + "/text-1", directory_ / "elsewhere");
  std::filesystem::create_symlink(directory_ / "elsewhere", run + "/text-2");
  std::filesystem::create_directory_symlink(run, folder_ + "/run-link");
  EXPECT_EQ(Offered().size(), 1U);
}

TEST_F(Recovery, WhatIsLeftOfADamagedTextIsOffered) {
  KilledAfter([&](RecoveryStore& store) {
    store.Keep(1, "/a", "first text");
    store.Keep(2, "/b", "other");
    store.Keep(3, "/c", "third");
    store.Keep(4, "/d", "fourth");
  });
  const std::string run = folder_ + "/" + Runs().at(0);
  std::filesystem::resize_file(run + "/text-1", std::filesystem::file_size(run + "/text-1") - 5);
  std::ofstream(run + "/text-3") << "no head at all";
  std::ofstream(run + "/text-4") << "";
  EXPECT_THAT(Offered(), testing::UnorderedElementsAre("/a: first [damaged]", "/b: other",
                                                       ": no head at all [damaged]"));
  EXPECT_FALSE(std::filesystem::exists(run + "/text-4")) << "nothing is left of it";
}

TEST_F(Recovery, ADamagedTextIsNotTakenForOneThatIsSafe) {
  const std::string path = directory_.Put("user.con", "text");
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, path, "text, longer"); });
  const std::string kept = folder_ + "/" + Runs().at(0) + "/text-1";
  std::filesystem::resize_file(kept, std::filesystem::file_size(kept) - 8);
  EXPECT_EQ(Offered(), std::vector<std::string>{path + ": text [damaged]"});
}

TEST_F(Recovery, WhatIsNoTextOfARunStaysAndHindersNobody) {
  KilledAfter([&](RecoveryStore& store) { store.Keep(1, "/a", "text"); });
  const std::string run = folder_ + "/" + Runs().at(0);
  ASSERT_EQ(::mkfifo((run + "/text-2").c_str(), 0600), 0);
  std::filesystem::create_directory(run + "/text-3");
  std::filesystem::create_symlink("/etc/passwd", run + "/text-4");
  std::ofstream(run + "/notes") << "somebody's own";
  ::alarm(20);
  EXPECT_EQ(Offered(), std::vector<std::string>{"/a: text"});
  Abandoned().Discard();
  ::alarm(0);
  EXPECT_TRUE(Offered().empty());
  EXPECT_FALSE(std::filesystem::exists(run + "/text-1"));
  EXPECT_EQ(BytesOf(run + "/notes"), "somebody's own");
  EXPECT_TRUE(std::filesystem::is_fifo(run + "/text-2"));
}

TEST_F(Recovery, ATextThatMayNotBeReadIsToldAndStays) {
  GiveToOrdinaryUser(directory_.Path());
  EXPECT_EQ(AsOrdinaryUser([&] {
              {
                RecoveryStore store(folder_);
                store.Keep(1, "/a", "text");
                store.Keep(2, "/b", "other");
                store.Flush();
              }
              ::chmod((folder_ + "/" + Runs().at(0) + "/text-1").c_str(), 0);
              AbandonedTexts abandoned = Abandoned();
              const std::string result = std::to_string(abandoned.Texts().size()) + " offered, " +
                                         abandoned.Problem().value_or("no problem");
              abandoned.Discard();
              return result;
            }),
            "1 offered, Permission denied");
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/" + Runs().at(0) + "/text-1"));
}

TEST_F(Recovery, AFolderThatVanishesIsMadeAnewAndToldToTheKeeper) {
  RecoveryStore store(folder_);
  store.Keep(1, "/a", "first");
  ASSERT_TRUE(store.Flush());
  EXPECT_FALSE(store.TakeLoss());
  std::filesystem::remove_all(directory_ / "state");
  store.Keep(2, "/b", "second");
  EXPECT_TRUE(store.Flush());
  EXPECT_TRUE(store.TakeLoss());
  EXPECT_FALSE(store.TakeLoss());
  EXPECT_FALSE(store.TakeProblem().has_value());
  EXPECT_TRUE(Offered().empty()) << "the program lives";
  ASSERT_EQ(Runs().size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/" + Runs()[0] + "/text-2"));
}

TEST_F(Recovery, AFolderThatWasMovedAwayIsNotWrittenToAnyMore) {
  RecoveryStore store(folder_);
  std::filesystem::rename(directory_ / "state", directory_ / "elsewhere");
  store.Keep(1, "/a", "text");
  EXPECT_TRUE(store.Flush());
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/" + Runs().at(0) + "/text-1"));
}

TEST_F(Recovery, WhatCouldNotBeKeptIsTriedAgain) {
  const std::string obstacle = directory_.Put("state", "a file where the folder should be");
  RecoveryStore store(folder_, std::chrono::milliseconds(20));
  store.Keep(1, "/a", "text");
  EXPECT_FALSE(store.Flush());
  EXPECT_TRUE(store.TakeProblem().has_value());
  std::filesystem::remove(obstacle);
  for (int i = 0; i < 500 && !store.Flush(); ++i) ::usleep(10'000);
  EXPECT_TRUE(store.Flush());
  EXPECT_FALSE(store.TakeProblem().has_value());
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/" + Runs().at(0) + "/text-1"));
}

TEST_F(Recovery, AFolderThatCannotBeLookedIntoIsTold) {
  std::filesystem::create_directories(directory_ / "state/ZanthMan");
  directory_.Put("state/ZanthMan/recovery", "no folder");
  const AbandonedTexts abandoned = Abandoned();
  EXPECT_TRUE(abandoned.Texts().empty());
  EXPECT_EQ(abandoned.Problem(), "Not a directory");
}

TEST_F(Recovery, ATextThatCannotBeDiscardedIsOfferedAgain) {
  GiveToOrdinaryUser(directory_.Path());
  EXPECT_EQ(AsOrdinaryUser([&] {
              {
                RecoveryStore store(folder_);
                store.Keep(1, "/a", "text");
                store.Flush();
              }
              const std::string run = folder_ + "/" + Runs().at(0);
              std::string result;
              {
                AbandonedTexts abandoned = Abandoned();
                ::chmod(run.c_str(), 0500);
                abandoned.Discard();
                result = abandoned.Problem().value_or("no problem");
              }
              ::chmod(run.c_str(), 0700);
              return result + ", " + std::to_string(Offered().size()) + " offered";
            }),
            "Permission denied, 1 offered");
}

TEST_F(Recovery, AFolderInWhichNoRunCanBeMadeIsTold) {
  GiveToOrdinaryUser(directory_.Path());
  EXPECT_EQ(AsOrdinaryUser([&] {
              std::filesystem::create_directories(folder_);
              ::chmod(folder_.c_str(), 0500);
              RecoveryStore store(folder_, std::chrono::milliseconds(10));
              store.Keep(1, "/a", "text");
              const bool kept = store.Flush();
              ::usleep(50'000);  // some tries later
              const std::string problem = store.TakeProblem().value_or("no problem");
              ::chmod(folder_.c_str(), 0700);
              return problem + (kept ? ", kept" : ", not kept") +
                     (Runs().empty() ? "" : ", something was left behind");
            }),
            "Permission denied, not kept");
}

TEST_F(Recovery, ANormalEndThatCannotClearUpLeavesTheTexts) {
  GiveToOrdinaryUser(directory_.Path());
  EXPECT_EQ(AsOrdinaryUser([&] {
              std::string run;
              {
                RecoveryStore store(folder_);
                store.Keep(1, "/a", "text");
                store.Flush();
                run = folder_ + "/" + Runs().at(0);
                ::chmod(run.c_str(), 0500);
                store.Finish();
              }
              ::chmod(run.c_str(), 0700);
              return Offered().at(0);
            }),
            "/a: text");
}

TEST_F(Recovery, AFolderThatCannotBeUsedIsToldBeforeThereIsAText) {
  directory_.Put("state", "a file where the folder should be");
  RecoveryStore store(folder_);
  EXPECT_TRUE(store.TakeProblem().has_value());
}

TEST_F(Recovery, AFolderThatCannotBeUsedIsToldOnce) {
  directory_.Put("state", "a file where the folder should be");
  RecoveryStore store(folder_);
  store.Keep(1, "/a", "text");
  EXPECT_FALSE(store.Flush());
  EXPECT_TRUE(store.TakeProblem().has_value());
  EXPECT_FALSE(store.TakeProblem().has_value());
  EXPECT_TRUE(Offered().empty());
}

TEST_F(Recovery, ATextThatCannotBeWrittenIsToldUntilItCan) {
  RecoveryStore store(folder_);
  store.Keep(1, "/a", "first");
  ASSERT_TRUE(store.Flush());
  const std::string run = folder_ + "/" + Runs().at(0);
  std::filesystem::rename(run + "/text-1", directory_ / "aside");
  std::filesystem::create_directories(run + "/text-1/occupied");  // no file can take its place
  store.Keep(1, "/a", "second");
  EXPECT_FALSE(store.Flush());
  EXPECT_TRUE(store.TakeProblem().has_value());
  std::filesystem::remove_all(run + "/text-1");
  store.Keep(1, "/a", "third");
  EXPECT_TRUE(store.Flush());
}

// Another document's text has moved to an editor whose text had the higher number.
TEST_F(Recovery, ATextIsNotDroppedBeforeTheOneThatReplacesItIsThere) {
  RecoveryStore store(folder_, std::chrono::milliseconds(20));
  store.Keep(1, "/a", "text");
  ASSERT_TRUE(store.Flush());
  const std::string run = folder_ + "/" + Runs().at(0);
  std::filesystem::create_directories(run + "/text-2/occupied");  // no file can take its place
  store.Keep(2, "/a", "text");
  store.DropReplaced(1, 2);
  EXPECT_FALSE(store.Flush());
  ::usleep(100'000);  // some more attempts
  EXPECT_TRUE(std::filesystem::is_regular_file(run + "/text-1"));
  std::filesystem::remove_all(run + "/text-2");
  const auto replaced = [&] {
    return std::filesystem::is_regular_file(run + "/text-2") &&
           !std::filesystem::exists(run + "/text-1");
  };
  for (int i = 0; i < 500 && !replaced(); ++i) ::usleep(10'000);
  EXPECT_TRUE(replaced());
}

TEST_F(Recovery, ATextMayBeReplacedSeveralTimesInARow) {
  RecoveryStore store(folder_, std::chrono::milliseconds(20));
  store.Keep(1, "/a", "text");
  ASSERT_TRUE(store.Flush());
  const std::string run = folder_ + "/" + Runs().at(0);
  std::filesystem::create_directories(run + "/text-3/occupied");
  store.Keep(2, "/a", "text");
  store.DropReplaced(1, 2);
  store.Keep(3, "/a", "text");
  store.DropReplaced(2, 3);
  EXPECT_FALSE(store.Flush());
  EXPECT_TRUE(std::filesystem::is_regular_file(run + "/text-1") ||
              std::filesystem::is_regular_file(run + "/text-2"));
  std::filesystem::remove_all(run + "/text-3");
  const auto replaced = [&] {
    return std::filesystem::is_regular_file(run + "/text-3") &&
           !std::filesystem::exists(run + "/text-1") && !std::filesystem::exists(run + "/text-2");
  };
  for (int i = 0; i < 500 && !replaced(); ++i) ::usleep(10'000);
  EXPECT_TRUE(replaced());
}

TEST_F(Recovery, ANormalEndLeavesWhatIsStillNeeded) {
  {
    RecoveryStore store(folder_);
    store.Keep(1, "/a", "needed");
    store.Keep(2, "/b", "not needed");
    store.Finish({1});
  }
  EXPECT_EQ(Offered(), std::vector<std::string>{"/a: needed"});
}

TEST_F(Recovery, WhatCouldNotBeKeptIsNotTriedAgainAfterANormalEnd) {
  RecoveryStore store(folder_, std::chrono::milliseconds(200));
  const std::string text = folder_ + "/" + Runs().at(0) + "/text-1";
  std::filesystem::create_directories(text + "/occupied");  // no file can take its place
  store.Keep(1, "/a", "text");
  EXPECT_FALSE(store.Flush());
  std::filesystem::remove_all(text);
  store.Finish();
  ::usleep(600'000);  // an attempt or two
  EXPECT_FALSE(std::filesystem::exists(text));
}

TEST_F(Recovery, AFolderThatAKilledStartLeftGoesOnceItIsOld) {
  std::filesystem::create_directories(folder_ + "/.run-1-old");
  std::filesystem::create_directories(folder_ + "/.run-2-young");
  std::filesystem::create_directories(folder_ + "/.run-3-full/more");
  const auto hoursAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
  std::filesystem::last_write_time(folder_ + "/.run-1-old", hoursAgo);
  std::filesystem::last_write_time(folder_ + "/.run-3-full", hoursAgo);
  EXPECT_TRUE(Offered().empty());
  EXPECT_FALSE(std::filesystem::exists(folder_ + "/.run-1-old"));
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/.run-2-young"));
  EXPECT_TRUE(std::filesystem::exists(folder_ + "/.run-3-full/more"));
}

TEST_F(Recovery, AProgramsFolderThatIsALinkIsToldAndNotFollowed) {
  std::filesystem::create_directories(directory_ / "elsewhere");
  std::filesystem::create_directories(directory_ / "state");
  std::filesystem::create_directory_symlink(directory_ / "elsewhere",
                                            directory_ / "state/ZanthMan");
  RecoveryStore store(folder_);
  store.Keep(1, "/a", "text");
  EXPECT_FALSE(store.Flush());
  EXPECT_TRUE(store.TakeProblem().has_value());
  EXPECT_TRUE(std::filesystem::is_empty(directory_ / "elsewhere"));
}

TEST_F(Recovery, KeepingTenMegabytesTakesNoTimeOfTheCaller) {
  RecoveryStore store(folder_);
  std::string bytes(10 << 20, 'x');
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 20; ++i) store.Keep(1, "/a", bytes);
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  RecordProperty("milliseconds_each", std::to_string(spent.count() / 20));
  EXPECT_LT(spent.count() / 20, 50);
  EXPECT_TRUE(store.Flush());
}

}  // namespace
}  // namespace tessel::test
