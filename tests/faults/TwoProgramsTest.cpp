// Two programs of one user at the same time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "faults/HostWorld.h"
#include "support/ChildProcess.h"
#include "support/RealWorld.h"
#include "support/RecentNames.h"
#include "words/ScriptWords.h"
#include "words/frmAddParam.h"

namespace tessel::test {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

constexpr int kFiles = 2;  // of both together, no more than the list holds
constexpr int kWords = 15;

/// A person adds a word in the word list editor.
void AddWord(Program& program, const std::string& word) {
  program.Controls().txtSearch.Type(word);
  program.fakes.forms.scripts.emplace_back([&](Form& form) {
    auto& editor = dynamic_cast<frmAddParam&>(form);
    editor.txtParams.Type("[" + word + "]");
    editor.cmdSave.Press();
  });
  program.Controls().cmdAddword.Press();
}

/// What a program of its own does; returns what it told the user.
std::string Work(const TempDirectory& directory, const std::string& store,
                 const std::string& name) {
  Program program(store);
  for (int i = 0; i < kFiles; ++i) {
    program.Open(directory / (name + std::to_string(i) + ".con"));
  }
  for (int i = 0; i < kWords; ++i) AddWord(program, name + std::to_string(i));
  std::string told = program.ToldInALine();
  for (const std::string& report : program.reports) told += report;
  return told;
}

TEST(TwoPrograms, LoseNeitherRecentFilesNorWords) {
  const TempDirectory directory;
  const TempDirectory settings;
  const std::string store = settings / "settings.db";
  std::vector<std::string> recent;
  std::vector<std::string> words;
  for (const std::string name : {"ADA", "BOB"}) {
    for (int i = 0; i < kFiles; ++i) {
      recent.push_back(name + std::to_string(i) + ".CON");
      directory.Put(recent.back(), "x");
    }
    for (int i = 0; i < kWords; ++i) words.push_back(name + std::to_string(i));
  }

  // The child of a child works beside this one.
  const std::string both = InChild([&] {
    const pid_t other = ::fork();
    const std::string told = Work(directory, store, other == 0 ? "ADA" : "BOB");
    if (other == 0) ::_exit(told.empty() ? 0 : 1);
    int status = 1;
    ::waitpid(other, &status, 0);
    return told + (status == 0 ? "" : " The other one failed.");
  });
  EXPECT_EQ(both, "");

  Program program(store);
  EXPECT_THAT(program.reports, IsEmpty());
  std::vector<std::string> found;
  for (const ScriptWord& word : ReadScriptWords(program.settings)) {
    EXPECT_EQ(word.parameters, "[" + word.word + "]");
    found.push_back(word.word);
  }
  EXPECT_THAT(found, UnorderedElementsAreArray(words));
  Toolbar& bar = program.Controls().tbToolBar;
  EXPECT_THAT(RecentNames(bar), UnorderedElementsAreArray(recent));
  for (int k = 0; k < std::ssize(recent); ++k) ChooseRecentFile(bar, k);  // each of them opens
  EXPECT_THAT(program.Told(), IsEmpty());
}

TEST(TwoPrograms, KeepBackupsBesideEachOther) {
  constexpr int kSaves = 30;
  constexpr int kKept = 20;
  const TempDirectory directory;
  const std::string state = directory / "state/ZanthMan";
  const auto save = [&](const std::string& name) {
    HostedProgram program(directory / (name + ".db"), state);
    const std::string path = directory.Put(name + ".con", name + " 0");
    program.Open(path);
    for (int i = 1; i <= kSaves; ++i) {
      program.Retype(name + " " + std::to_string(i));
      program.SaveAs(path);
    }
    return program.EverythingTold();
  };
  EXPECT_EQ(InChild([&] {
              const pid_t other = ::fork();
              const std::string told = save(other == 0 ? "ada" : "bob");
              if (other == 0) ::_exit(told.empty() ? 0 : 1);
              int status = 1;
              ::waitpid(other, &status, 0);
              return told + (status == 0 ? "" : " The other one failed.");
            }),
            "");
  for (const std::string name : {"ada", "bob"}) {
    std::vector<std::string> texts = BackedUp(state);
    std::erase_if(texts, [&](const std::string& text) { return !text.starts_with(name); });
    ASSERT_EQ(texts.size(), kKept);
    for (int i = 0; i < kKept; ++i) {
      EXPECT_EQ(texts[static_cast<std::size_t>(i)], name + " " + std::to_string(kSaves - 1 - i));
    }
  }
}

TEST(TwoPrograms, AreNeverOfferedEachOthersTextsWhileTheyLive) {
  const TempDirectory directory;
  const std::string state = directory / "state/ZanthMan";
  RecoveryStore living(state + "/recovery");
  living.Keep(1, "/mine", "of the one that lives");
  ASSERT_TRUE(living.Flush());
  EXPECT_THAT(Offered(state), IsEmpty());
  // Another one is started and killed beside it, again and again.
  for (int i = 0; i < 20; ++i) {
    const pid_t other = ::fork();
    if (other == 0) {
      RecoveryStore store(state + "/recovery");
      store.Keep(1, "/theirs", "of the one that was killed");
      store.Flush();
      ::raise(SIGKILL);
    }
    ::waitpid(other, nullptr, 0);
    EXPECT_EQ(Offered(state), std::vector<std::string>{"/theirs: of the one that was killed"});
    AbandonedTexts(state + "/recovery", BytesIfThere).Discard();
    EXPECT_THAT(Offered(state), IsEmpty());
  }
  living.Keep(1, "/mine", "still kept");
  EXPECT_TRUE(living.Flush());
}

TEST(TwoPrograms, DoNotWaitForOneThatHangs) {
  const TempDirectory directory;
  const std::string store = directory / "settings.db";
  const std::string state = directory / "state/ZanthMan";
  const auto work = [&](const std::string& name) {
    const std::string path = directory.Put(name + ".con", "old");
    HostedProgram program(store, state);
    RecoveryStore recovery(state + "/recovery");
    program.Open(path);
    program.Retype("new");
    recovery.Keep(1, path, "new");
    AddWord(program, name);
    program.SaveAs(path);
    const bool kept = recovery.Flush();
    if (name == "hanging") ::raise(SIGSTOP);
    return program.EverythingTold() + (kept ? "saved and kept" : "not kept");
  };
  const pid_t hanging = ::fork();
  if (hanging == 0) ::_exit(work("hanging").size() % 256);
  int status = 0;
  ASSERT_EQ(::waitpid(hanging, &status, WUNTRACED), hanging);
  ASSERT_TRUE(WIFSTOPPED(status));

  ::alarm(20);
  EXPECT_EQ(work("other"), "saved and kept");
  ::alarm(0);
  EXPECT_EQ(BytesOf(directory / "other.con"), "new");
  EXPECT_EQ(BackedUp(state).size(), 2U);
  EXPECT_THAT(Offered(state), IsEmpty()) << "the hanging one's text is its own still";
  ::kill(hanging, SIGKILL);
  ::waitpid(hanging, nullptr, 0);
  EXPECT_THAT(Offered(state), IsEmpty()) << "it was saved";
}

}  // namespace
}  // namespace tessel::test
