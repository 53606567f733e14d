// Two programs of one user at the same time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/RealWorld.h"
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
  std::vector<std::string> listed;
  Toolbar& bar = program.Controls().tbToolBar;
  for (int k = 10; k <= bar.MenuCount("FileNew"); ++k) {
    listed.push_back(bar.MenuItem("FileNew", k).text);
  }
  EXPECT_THAT(listed, UnorderedElementsAreArray(recent));
  // Each of them opens.
  for (int k = 10; k <= bar.MenuCount("FileNew"); ++k) bar.PressMenuItem("FileNew", k);
  EXPECT_THAT(program.Told(), IsEmpty());
}

}  // namespace
}  // namespace tessel::test
