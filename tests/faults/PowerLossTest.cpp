// The power fails at any moment: the calls of a save, a backup or the keeping of unsaved text are
// recorded, and each disk that could be left after each of them is made and looked at.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "faults/HostWorld.h"
#include "safekeeping/RunMark.h"
#include "support/ChildProcess.h"
#include "support/DiskModel.h"
#include "support/FileCalls.h"
#include "support/RefusedCalls.h"

namespace tessel::test {
namespace {

using testing::Contains;

const std::string kBefore(10'000, 'o');
const std::string kLinkedBefore(10'000, 'p');
const std::string kShorter(6'000, 's');
const std::string kLonger(15'000, 'l');

std::string Listed(const DiskContent& content) {
  std::string list;
  for (const auto& [path, bytes] : content) {
    list += "\n  " + path + (bytes ? ": " + std::to_string(bytes->size()) + " bytes" : "/");
    if (bytes && !bytes->empty()) list += std::string(" from ") + (bytes->front() ? "" : "NUL");
  }
  return list;
}

class PowerLoss : public testing::Test {
 protected:
  void SetUp() override {
    if (!kCallsAreSeen) GTEST_SKIP() << "calls cannot be recorded on this processor";
  }

  /// Does that and looks at every disk that the power could have left meanwhile. `Look` gets what
  /// was noted until then.
  template <class Action, class Look>
  void FailDuring(Action action, Look look, void (*prepare)() = nullptr) {
#if defined(__x86_64__)
    DiskModel disk(root);
    const auto calls = FileCalls(root).Record(action, prepare);
    std::set<std::string> done;
    std::set<std::pair<std::set<std::string>, DiskContent>> seen;
    for (std::size_t i = 0; i <= calls.size() && !HasFailure(); ++i) {
      disk.EachContent([&](const DiskContent& content) {
        if (HasFailure() || !seen.emplace(done, content).second) return;
        SCOPED_TRACE("call " + std::to_string(i) + " of " + std::to_string(calls.size()) +
                     (i == 0 ? "" : ", behind " + calls[i - 1].path) + Listed(content));
        PutOnDisk(root, content);
        look(done);
      });
      if (i == calls.size()) break;
      disk.Apply(calls[i]);
      if (calls[i].kind == FileCall::Kind::kNote) done.insert(calls[i].other);
    }
    RecordProperty("Disks", static_cast<int>(seen.size()));
    disks = seen.size();
#endif
  }

  bool IsBackedUp(const std::string& text) const {
    const auto texts = BackedUp(state);
    return std::ranges::find(texts, text) != texts.end();
  }

  TempDirectory directory;
  std::string root = std::filesystem::canonical(directory.Path());
  std::string path = root + "/user.con";
  std::string state = root + "/state/ZanthMan";
  std::size_t disks = 0;
};

using Done = std::set<std::string>;

std::string BytesOrNothing(const std::string& path) {
  return BytesIfThere(path).value_or("nothing");
}

// --- Files

TEST_F(PowerLoss, ASavedFileIsTheOldOneOrTheNewOneWhole) {
  directory.Put("user.con", kBefore);
  FailDuring(
      [&] {
        PosixFiles files;
        files.Write(path, kShorter);
        Note("saved");
        files.Write(path, kLonger);
        Note("saved again");
      },
      [&](const Done& done) {
        const std::string bytes = BytesOrNothing(path);
        if (done.contains("saved again")) {
          EXPECT_TRUE(bytes == kLonger);
        } else if (done.contains("saved")) {
          EXPECT_TRUE(bytes == kShorter || bytes == kLonger);
        } else {
          EXPECT_TRUE(bytes == kBefore || bytes == kShorter);
        }
      });
  EXPECT_GT(disks, 10);
}

TEST_F(PowerLoss, ANewFileIsThereWholeOrNotAtAll) {
  FailDuring(
      [&] {
        PosixFiles().WriteNew(path, kBefore);
        Note("saved");
      },
      [&](const Done& done) {
        const std::string bytes = BytesOrNothing(path);
        EXPECT_TRUE(bytes == kBefore || (bytes == "nothing" && !done.contains("saved")));
      });
}

TEST_F(PowerLoss, AFileInAFolderThatCannotBeListedIsOldOrNewToo) {
  directory.Put("drop/user.con", kBefore);
  path = root + "/drop/user.con";
  const std::string drop = root + "/drop";
  GiveToOrdinaryUser(path);
  GiveToOrdinaryUser(drop);
  ::chmod(drop.c_str(), 0300);
  FailDuring(
      [&] {
        PosixFiles().Write(path, kLonger);
        Note("saved");
      },
      [&](const Done& done) {
        const std::string bytes = BytesOrNothing(path);
        EXPECT_TRUE(bytes == kLonger || (bytes == kBefore && !done.contains("saved")));
      },
      BecomeOrdinaryUser);
  ::chmod(drop.c_str(), 0755);
}

class PowerLossInPlace : public PowerLoss, public testing::WithParamInterface<std::string> {};

// As tessel saves: there is no other backup.
TEST_P(PowerLossInPlace, AFileWithTwoNamesIsWholeOrItsOldBytesAreTheNewestBackup) {
  directory.Put("user.con", kBefore);
  std::filesystem::create_hard_link(path, root + "/second.con");
  FailDuring(
      [&] {
        PosixFiles files;
        files.KeepOldBytesBy(KeepAsBackups(state + "/backups"));
        files.Write(path, GetParam());
        Note("saved");
      },
      [&](const Done& done) {
        const std::string bytes = BytesOf(path);
        EXPECT_EQ(BytesOf(root + "/second.con"), bytes);
        EXPECT_TRUE(bytes == GetParam() || !done.contains("saved"));
        EXPECT_TRUE(bytes == kBefore || BackedUp(state) == std::vector{kBefore});
      });
  EXPECT_GT(disks, 10);
}

INSTANTIATE_TEST_SUITE_P(ShorterAndLonger, PowerLossInPlace, testing::Values(kShorter, kLonger));

TEST_F(PowerLoss, WhatTheHostSavesIsWholeAndWhatItReplacedIsABackup) {
  directory.Put("user.con", kBefore);
  directory.Put("linked.con", kLinkedBefore);
  std::filesystem::create_hard_link(root + "/linked.con", root + "/second.con");
  FailDuring(
      [&] {
        HostFiles host(state);
        host.files.Write(path, kShorter);
        Note("saved");
        host.files.Write(root + "/linked.con", kLonger);
        Note("saved linked");
        if (!host.problems.empty()) throw std::runtime_error(host.problems.front());
      },
      [&](const Done& done) {
        const std::string bytes = BytesOf(path);
        const std::string linked = BytesOf(root + "/linked.con");
        EXPECT_TRUE(bytes == kShorter || (bytes == kBefore && !done.contains("saved")));
        EXPECT_TRUE(linked == kLonger || !done.contains("saved linked"));
        EXPECT_TRUE(bytes == kBefore || IsBackedUp(kBefore));
        EXPECT_TRUE(linked == kLinkedBefore || IsBackedUp(kLinkedBefore));
      });
}

// A program that was killed may have left the backup there, not yet flushed.
TEST_F(PowerLoss, ABackupThatIsThereAlreadyIsFlushedBeforeAFileIsWrittenInPlace) {
  directory.Put("user.con", kBefore);
  std::filesystem::create_hard_link(path, root + "/second.con");
  std::filesystem::create_directories(state + "/backups");
  const std::string backups = state + "/backups";
  FailDuring(
      [&] {
        BackupStore(backups).Keep(path, kBefore);
        // The flush of the folder that the kill came before.
        const std::string name = std::filesystem::directory_iterator(backups)->path().filename();
        std::filesystem::path old = backups + "/" + name;
        if (::renameat(AT_FDCWD, old.c_str(), AT_FDCWD, (backups + "/other").c_str()) != 0 ||
            ::renameat(AT_FDCWD, (backups + "/other").c_str(), AT_FDCWD, old.c_str()) != 0) {
          throw std::runtime_error("cannot rename");
        }
        PosixFiles files;
        files.KeepOldBytesBy(KeepAsBackups(backups));
        files.Write(path, kLonger);
      },
      [&](const Done&) { EXPECT_TRUE(BytesOf(path) == kBefore || IsBackedUp(kBefore)); });
}

// --- Unsaved text

std::string TextNumber(int number) {
  return std::to_string(number) + std::string(9'000 + 100 * static_cast<std::size_t>(number), 'x');
}

std::vector<std::string> OfferedTexts(const std::string& state) {
  std::vector<std::string> texts;
  const AbandonedTexts abandoned(state + "/recovery", BytesIfThere);
  for (const KeptBytes& text : abandoned.Texts()) {
    texts.push_back(text.bytes + (text.damaged ? " [damaged]" : ""));
  }
  if (abandoned.Problem()) texts.push_back("told: " + *abandoned.Problem());
  return texts;
}

void KeepFlushed(RecoveryStore& store, RecoveryStore::Id id, const std::string& path,
                 const std::string& text) {
  store.Keep(id, path, text);
  if (!store.Flush()) throw std::runtime_error("the text could not be kept");
}

TEST_F(PowerLoss, AnUnsavedTextThatWasKeptIsOfferedWhole) {
  FailDuring(
      [&] {
        RecoveryStore store(state + "/recovery");
        for (int i = 0; i < 3; ++i) {
          KeepFlushed(store, 1, path, TextNumber(i));
          Note(std::to_string(i));
        }
        ::_exit(0);  // its texts stay
      },
      [&](const Done& done) {
        const int kept = static_cast<int>(done.size()) - 1;
        const auto offered = OfferedTexts(state);
        if (kept < 0 && offered.empty()) return;
        ASSERT_EQ(offered.size(), 1U);
        EXPECT_TRUE(offered[0] == TextNumber(std::max(kept, 0)) ||
                    offered[0] == TextNumber(kept + 1));
      });
  EXPECT_GT(disks, 10);
}

TEST_F(PowerLoss, AKeptTextIsOfferedUntilItsFileHasIt) {
  directory.Put("user.con", kBefore);
  FailDuring(
      [&] {
        HostFiles host(state);
        RecoveryStore store(state + "/recovery");
        KeepFlushed(store, 1, path, kLonger);
        Note("kept");
        host.files.Write(path, kLonger);
        store.Drop(1);
        store.Finish();
      },
      [&](const Done& done) {
        const std::string bytes = BytesOf(path);
        EXPECT_TRUE(bytes == kBefore || bytes == kLonger);
        const std::vector<std::string> needed(bytes == kBefore && done.contains("kept") ? 1 : 0,
                                              kLonger);
        if (bytes == kLonger || !needed.empty()) {
          EXPECT_TRUE(OfferedTexts(state) == needed);
        }
      });
}

TEST_F(PowerLoss, ARecoveredTextStaysUntilTheNextRunHasKeptIt) {
  const auto killed = [&] {
    RecoveryStore store(state + "/recovery");
    KeepFlushed(store, 1, path, kLonger);
    ::_exit(0);
    return "";
  };
  InChild(killed);
  ASSERT_EQ(OfferedTexts(state), std::vector{kLonger});
  FailDuring(
      [&] {
        AbandonedTexts texts(state + "/recovery", BytesIfThere);
        RecoveryStore store(state + "/recovery");
        KeepFlushed(store, 1, path, texts.Texts().at(0).bytes);
        texts.Discard();
        Note("recovered");
        ::_exit(0);
      },
      [&](const Done&) {
        const auto offered = OfferedTexts(state);
        EXPECT_TRUE(std::ranges::find(offered, kLonger) != offered.end());
      });
}

// There the mark tells the next start, which is another one of the computer, that the run is over.
TEST_F(PowerLoss, WhereFilesCannotBeLockedATextIsNeverWithoutItsRunsMark) {
  bool kept = false;
  FailDuring(
      [&] {
        RecoveryStore store(state + "/recovery");
        KeepFlushed(store, 1, path, kLonger);
        ::_exit(0);
      },
      [&](const Done&) {
        if (!std::filesystem::exists(state + "/recovery")) return;
        for (const auto& run : std::filesystem::directory_iterator(state + "/recovery")) {
          if (!std::filesystem::exists(run.path() / "text-1")) continue;
          EXPECT_EQ(ComputerIn(BytesOf(run.path() / ".lock")), ComputerIn(MarkOfThisRun()));
          kept = true;
        }
      },
      [] { RefuseCall(SYS_flock, ENOLCK); });
  EXPECT_TRUE(kept);
}

// --- The model finds what it is there for

/// What is left of a file in which those steps put "new" for "old".
std::set<std::string> LeftBy(const std::string& root, const std::vector<FileCall>& calls) {
  DiskModel disk(root);
  std::set<std::string> left;
  for (const FileCall& call : calls) {
    disk.Apply(call);
    disk.EachContent([&](const DiskContent& content) {
      const auto file = content.find(root + "/user.con");
      left.insert(file == content.end() ? "none" : *file->second);
    });
  }
  return left;
}

TEST_F(PowerLoss, IsSeenWhereAFileIsRenamedBeforeItIsFlushed) {
  using enum FileCall::Kind;
  directory.Put("user.con", "old");
  const FileCall make{kMakeFile, root + "/x"};
  const FileCall write{kWrite, root + "/x", {}, 0, "new"};
  const FileCall flush{kFlush, root + "/x"};
  const FileCall rename{kRename, root + "/x", path};
  EXPECT_THAT(LeftBy(root, {make, write, flush, rename}), testing::ElementsAre("new", "old"));
  EXPECT_THAT(LeftBy(root, {make, write, rename}),
              testing::IsSupersetOf({std::string(), std::string(3, '\0'), std::string("n")}));
  EXPECT_THAT(LeftBy(root, {make, write, rename, {kFlush, path}}), Contains(""));
}

TEST_F(PowerLoss, IsSeenWhereAFileOrItsFolderHasNoNameYet) {
  using enum FileCall::Kind;
  const FileCall make{kMakeFile, path};
  const FileCall folder{kFlush, root};
  EXPECT_THAT(LeftBy(root, {make}), Contains("none"));
  DiskModel disk(root);
  const std::string inside = root + "/a/b";
  for (const FileCall& call : {FileCall{kMakeFolder, root + "/a"}, FileCall{kMakeFile, inside},
                               FileCall{kFlush, inside}, FileCall{kFlush, root + "/a"}}) {
    disk.Apply(call);
  }
  std::set<std::size_t> sizes;
  disk.EachContent([&](const DiskContent& c) { sizes.insert(c.size()); });
  EXPECT_EQ(sizes, (std::set<std::size_t>{0, 2}));
  disk.Apply(folder);
  sizes.clear();
  disk.EachContent([&](const DiskContent& c) { sizes.insert(c.size()); });
  EXPECT_EQ(sizes, std::set<std::size_t>{2});
}

}  // namespace
}  // namespace tessel::test
