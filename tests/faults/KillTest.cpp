// The program is killed while it saves: the file holds the old bytes or the new ones, the store all
// of a writing or nothing of it, and every text that was replaced or not saved is there afterwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>

#include "faults/HostWorld.h"
#include "support/ChildProcess.h"
#include "support/RealWorld.h"
#include "support/SystemCalls.h"
#include "words/ScriptWords.h"

namespace tessel::test {
namespace {

using testing::AnyOf;
using testing::IsEmpty;
using testing::StartsWith;

/// TESSEL_KILL_ROUNDS, for a longer run.
int Rounds() {
  const char* wanted = std::getenv("TESSEL_KILL_ROUNDS");
  return wanted == nullptr ? 20 : std::atoi(wanted);
}

/// Starts a program that gets ready with `prepare`, goes on with `work` for ever, and is killed at
/// a random moment of it.
template <class Prepare, class Work>
void KillAtARandomMoment(Prepare prepare, Work work, std::chrono::microseconds moment) {
  std::array<int, 2> ready{};
  ASSERT_EQ(::pipe(ready.data()), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    auto state = prepare();
    if (::write(ready[1], "x", 1) != 1) ::_exit(1);
    for (int i = 0;; ++i) work(*state, i);
  }
  ::close(ready[1]);
  char byte = 0;
  const bool started = ::read(ready[0], &byte, 1) == 1;
  ::close(ready[0]);
  std::this_thread::sleep_for(moment);
  ::kill(child, SIGKILL);
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(started);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "it ended by itself";
}

class KillTest : public testing::Test {
 protected:
  /// How long a flushed writing takes here decides when to kill.
  void SetUp() override {
    using namespace std::chrono;
    const auto start = steady_clock::now();
    for (int i = 0; i < 4; ++i) PosixFiles().Write(directory / "probe", std::string(100'000, 'x'));
    span = std::max(span, 3 * duration_cast<microseconds>(steady_clock::now() - start));
    std::filesystem::remove(directory / "probe");
  }

  /// Some are killed during the first save, some after dozens.
  std::chrono::microseconds Moment() {
    return std::chrono::microseconds(
        std::uniform_int_distribution<std::chrono::microseconds::rep>(0, span.count())(random));
  }

  std::chrono::microseconds span{20'000};
  TempDirectory directory;
  std::string store = directory / "settings/settings.db";
  std::mt19937 random{20'240};
};

TEST_F(KillTest, ASaveLeavesOneOfTheTwoTextsWhole) {
  const std::array<std::string, 2> texts = {std::string(300'000, 'a'), std::string(500'000, 'b')};
  std::string path;
  int halfWay = 0;
  for (int round = 0; round < Rounds(); ++round) {
    const std::string name = "files" + std::to_string(round);
    path = directory.Put(name + "/user.con", texts[0]);
    ASSERT_NO_FATAL_FAILURE(KillAtARandomMoment(
        [&] {
          auto program = std::make_unique<Program>(store);
          program->Open(path);
          return program;
        },
        [&](Program& program, int i) {
          program.Editor().SetText(texts[(i + 1) % 2]);
          program.SaveAs(path);
        },
        Moment()));
    const std::string bytes = BytesOf(path);
    ASSERT_TRUE(bytes == texts[0] || bytes == texts[1])
        << "round " << round << ": " << bytes.size() << " bytes";
    int others = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory / name)) {
      const std::string found = entry.path().filename();
      EXPECT_THAT(found, AnyOf("user.con", StartsWith(".tessel-")));
      if (found != "user.con") ++others;
    }
    EXPECT_LE(others, 1);
    halfWay += others;
    std::filesystem::remove_all(directory / name);
  }
  // The test is worth something only when kills did hit the inside of a save.
  EXPECT_GT(halfWay, 0);
  RecordProperty("KilledWithANewFileHalfWritten", halfWay);
}

TEST_F(KillTest, WordsAreInTheStoreAllOrNot) {
  constexpr int kWords = 40;
  int changed = 0;
  std::string last;
  for (int round = 0; round < Rounds(); ++round) {
    ASSERT_NO_FATAL_FAILURE(KillAtARandomMoment(
        [&] { return std::make_unique<Program>(store); },
        [&](Program& program, int i) {
          std::vector<ScriptWord> words;
          for (int w = 0; w < kWords; ++w) {
            words.push_back({"word" + std::to_string(w),
                             "[" + std::to_string(round) + "/" + std::to_string(i) + "]"});
          }
          WriteScriptWords(program.settings, words);
        },
        Moment()));
    Program program(store);
    ASSERT_THAT(program.reports, IsEmpty());
    const auto words = ReadScriptWords(program.settings);
    if (words.empty()) continue;
    ASSERT_EQ(words.size(), kWords);
    for (const ScriptWord& word : words) {
      ASSERT_EQ(word.parameters, words[0].parameters) << "round " << round;
    }
    if (words[0].parameters != last) ++changed;
    last = words[0].parameters;
  }
  EXPECT_GT(changed, 0);
}

// --- With all that the host has between the control and the disk

/// A text whose number can be told from its first line.
std::string NumberedText(int number) {
  return std::to_string(number) + "\r\n" + std::string(20'000 + 1000 * (number % 7), 'x');
}

int NumberOf(const std::string& text) {
  const int number = std::atoi(text.c_str());
  EXPECT_EQ(text, NumberedText(number)) << "no whole text";
  return number;
}

TEST_F(KillTest, EveryTextThatASaveReplacedIsAmongTheBackups) {
  constexpr int kKept = 20;
  const std::string state = directory / "state/ZanthMan";
  const std::string path = directory.Put("user.con", NumberedText(0));
  int next = 0;
  int replacedAtLast = 0;
  for (int round = 0; round < Rounds(); ++round) {
    ASSERT_NO_FATAL_FAILURE(KillAtARandomMoment(
        [&] {
          auto program = std::make_unique<HostedProgram>(store, state);
          program->Open(path);
          return program;
        },
        [&](HostedProgram& program, int i) {
          program.Retype(NumberedText(next + i + 1));
          program.SaveAs(path);
          if (!program.EverythingTold().empty()) ::_exit(2);
        },
        Moment()));
    const int last = NumberOf(BytesOf(path));
    ASSERT_GE(last, next);
    std::vector<int> backups;
    for (const std::string& text : BackedUp(state)) backups.push_back(NumberOf(text));
    // The text of a save that did not come to its end is a backup, too.
    if (!backups.empty() && backups.front() == last) {
      backups.erase(backups.begin());
      ++replacedAtLast;
    }
    for (int i = 0; i < std::min(last, kKept - 1); ++i) {
      ASSERT_LT(static_cast<std::size_t>(i), backups.size()) << "round " << round;
      ASSERT_EQ(backups[static_cast<std::size_t>(i)], last - 1 - i) << "round " << round;
    }
    next = last;
  }
  EXPECT_GT(next, 0);
  EXPECT_GT(replacedAtLast, 0) << "no kill hit the inside of a save";
  RecordProperty("Saves", next);
  RecordProperty("KilledBetweenBackupAndSave", replacedAtLast);
  // What killed writings of backups have left goes with the next one.
  HostedProgram program(store, state);
  program.Open(path);
  program.Retype("the end");
  program.SaveAs(path);
  EXPECT_EQ(BackedUp(state).size(), std::min(next + 1, kKept));
  for (const auto& entry : std::filesystem::directory_iterator(state + "/backups")) {
    EXPECT_FALSE(entry.path().filename().string().starts_with('.')) << entry.path();
  }
}

// Where the folder takes no new file, a save writes into the old one, and a kill can tear it.
TEST_F(KillTest, ATextThatASaveInPlaceTearsIsAmongTheBackups) {
  const std::string old(300'000, 'o');
  const std::string replacement(200'000, 'n');
  const std::string path = directory.Put("fixed/user.con", old);
  const std::string home = directory / "home";
  std::filesystem::create_directory(home);
  GiveToOrdinaryUser(path);
  GiveToOrdinaryUser(home);
  int torn = 0;
  auto outcome = DisturbedChild::Outcome::kKilled;
  for (int call = 1; outcome == DisturbedChild::Outcome::kKilled; ++call) {
    ASSERT_EQ(::chmod((directory / "fixed").c_str(), 0755), 0);
    directory.Put("fixed/user.con", old);
    ASSERT_EQ(::chmod((directory / "fixed").c_str(), 0555), 0);
    std::filesystem::remove_all(home + "/state");
    const auto save = [&] {
      HostFiles host(home + "/state");
      host.files.Write(path, replacement);
      return host.problems.empty();
    };
    outcome = DisturbedChild(save, BecomeOrdinaryUser).KillAt(call);
    const std::string bytes = BytesOf(path);
    if (bytes == old) continue;
    if (bytes != replacement) ++torn;
    ASSERT_EQ(AsOrdinaryUser([&] {
                return BackedUp(home + "/state") == std::vector{old} ? "kept" : "not kept";
              }),
              "kept")
        << "killed at call " << call;
  }
  ::chmod((directory / "fixed").c_str(), 0755);
  EXPECT_EQ(outcome, DisturbedChild::Outcome::kSucceeded);
  // A sanitizer's own calls differ from run to run: counting may pass over the moment.
  if (kCallsCanFail) {
    EXPECT_GE(torn, 1);
  }
}

// As tessel saves: there is no other backup.
TEST_F(KillTest, ATextThatASaveOfAFileWithTwoNamesTearsIsAmongTheBackups) {
  const std::string old(300'000, 'o');
  const std::string replacement(200'000, 'n');
  const std::string path = directory.Put("user.con", old);
  const std::string second = directory / "second.con";
  const std::string state = directory / "state";
  ASSERT_EQ(::link(path.c_str(), second.c_str()), 0);
  int torn = 0;
  auto outcome = DisturbedChild::Outcome::kKilled;
  for (int call = 1; outcome == DisturbedChild::Outcome::kKilled; ++call) {
    directory.Put("user.con", old);
    std::filesystem::remove_all(state);
    const auto save = [&] {
      PosixFiles files;
      files.KeepOldBytesBy(KeepAsBackups(state + "/backups"));
      files.Write(path, replacement);
      return true;
    };
    outcome = DisturbedChild(save).KillAt(call);
    const std::string bytes = BytesOf(path);
    ASSERT_EQ(BytesOf(second), bytes);
    if (bytes == old) continue;
    if (bytes != replacement) ++torn;
    ASSERT_EQ(BackedUp(state), std::vector{old}) << "killed at call " << call;
  }
  EXPECT_EQ(outcome, DisturbedChild::Outcome::kSucceeded);
  if (kCallsCanFail) {
    EXPECT_GE(torn, 1);
  }
}

TEST_F(KillTest, EveryTextThatWasKeptForRecoveryIsOffered) {
  constexpr int kDocuments = 3;
  const std::string state = directory / "state/ZanthMan";
  int newer = 0;
  for (int round = 0; round < Rounds(); ++round) {
    // How many writings of all documents were seen on the disk, told by the child as it goes.
    auto* written = static_cast<std::atomic<int>*>(::mmap(nullptr, sizeof(std::atomic<int>),
                                                          PROT_READ | PROT_WRITE,
                                                          MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(written, MAP_FAILED);
    const auto keepAll = [&](RecoveryStore& recovery, int i) {
      for (int document = 0; document < kDocuments; ++document) {
        recovery.Keep(document, "/" + std::to_string(document), NumberedText(i));
      }
      if (!recovery.Flush()) ::_exit(2);
      *written = i;
    };
    ASSERT_NO_FATAL_FAILURE(KillAtARandomMoment(
        [&] {
          auto recovery = std::make_unique<RecoveryStore>(state + "/recovery");
          keepAll(*recovery, 0);
          return recovery;
        },
        [&](RecoveryStore& recovery, int i) { keepAll(recovery, i + 1); }, Moment()));
    {
      AbandonedTexts texts(state + "/recovery", BytesIfThere);
      ASSERT_FALSE(texts.Problem()) << *texts.Problem();
      ASSERT_EQ(texts.Texts().size(), kDocuments) << "round " << round;
      for (const KeptBytes& text : texts.Texts()) {
        ASSERT_FALSE(text.damaged);
        const int number = NumberOf(text.bytes);
        ASSERT_GE(number, written->load()) << "round " << round;
        ASSERT_LE(number, written->load() + 1);
        if (number > *written) ++newer;
      }
      texts.Discard();
    }
    ::munmap(written, sizeof *written);
    ASSERT_TRUE(std::filesystem::is_empty(state + "/recovery")) << "something was left behind";
  }
  EXPECT_GT(newer, 0) << "no kill hit the inside of a writing";
  RecordProperty("TextsNewerThanTheLastFlush", newer);
}

}  // namespace
}  // namespace tessel::test
