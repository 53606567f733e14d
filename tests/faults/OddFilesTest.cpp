// Files at the edge of being files, and disks that go or turn read-only under an open one.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "posix/Posix.h"
#include "support/ChildProcess.h"
#include "support/RealWorld.h"
#include "support/TinyDisk.h"
#include "tools/frmFind.h"

namespace tessel::test {
namespace {

class ShortFile : public testing::TestWithParam<std::string> {
 protected:
  TempDirectory directory;
  std::string path = directory.Put("user.con", GetParam());
  Program program{directory / "settings.db"};
};

TEST_P(ShortFile, ComesThroughEverythingAsItIs) {
  program.Open(path);
  EXPECT_EQ(program.Editor().Text(), GetParam());
  program.Controls().tbToolBar.Press("Colorize");
  program.Controls().tbToolBar.Press("Colorize");
  program.fakes.forms.scripts.push_back([](Form& form) {
    auto& find = dynamic_cast<frmFind&>(form);
    find.cboFind.Type("x");
    find.cmdFind.Press();
  });
  program.Controls().tbToolBar.Press("Find");
  program.control.Convert();
  program.Controls().tbsCon.Press(5);  // looks for levels
  program.Told();
  program.SaveAs(path);
  EXPECT_EQ(program.ToldInALine(), "");
  EXPECT_EQ(program.Editor().Text(), GetParam());
  EXPECT_EQ(BytesOf(path), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, ShortFile,
                         testing::Values("", "x", "\r", "\n", "\r\n", "\n\r", "\t", "/", "/*", "*/",
                                         "//", "{", std::string(1, '\0'), "\x80", "\xFF"));

// A reader sees bytes that somebody wrote, or the zeros that the system gives for what is cut off
// while it is copied, and nothing else.
TEST(FileThatOthersChange, IsReadAsBytesOfTheirs) {
  const TempDirectory directory;
  const std::string path = directory.Put("user.con", std::string(300'000, 'x'));
  std::atomic<bool> done = false;
  std::thread writer([&] {
    const posix::Descriptor file(::open(path.c_str(), O_RDWR | O_APPEND | O_CLOEXEC));
    const std::string more(100'000, 'x');
    while (!done) {
      if (::ftruncate(file.Number(), 7) != 0) break;
      for (int i = 0; i < 3; ++i) {
        if (::write(file.Number(), more.data(), more.size()) <= 0) break;
      }
    }
  });
  PosixFiles files;
  std::size_t shortest = std::string::npos;
  std::size_t longest = 0;
  for (int i = 0; i < 300; ++i) {
    const std::string bytes = files.Read(path);
    EXPECT_EQ(bytes.find_first_not_of(std::string_view("x\0", 2)), std::string::npos);
    shortest = std::min(shortest, bytes.size());
    longest = std::max(longest, bytes.size());
  }
  done = true;
  writer.join();
  EXPECT_LT(shortest, longest) << "the writer was never in the way";
}

/// Opens a file of a disk of its own, lets something happen to the disk, and saves.
template <class Happen>
std::string SaveAfter(const std::string& folder, const std::string& store, Happen happen) {
  return InChild([&]() -> std::string {
    if (!MountTinyDisk(folder, 64)) return "cannot mount";
    const std::string path = folder + "/user.con";
    std::ofstream(path) << "old";
    Program program(store);
    program.Open(path);
    if (!happen()) return "cannot happen";
    program.Retype("new");
    program.Save();
    return program.ToldInALine() + (program.Modified() ? " [modified, " : " [unmodified, ") +
           program.Editor().Text() + "]";
  });
}

TEST(DiskUnderAFile, ThatWasTakenOutIsToldAndTheTextStays) {
  const TempDirectory directory;
  const TempDirectory settings;
  const std::string disk = directory / "disk";
  std::filesystem::create_directory(disk);
  const std::string result = SaveAfter(disk, settings / "settings.db", [&] {
    return ::umount2(disk.c_str(), MNT_DETACH) == 0 && ::rmdir(disk.c_str()) == 0;
  });
  if (result == "cannot mount") GTEST_SKIP() << "only the superuser can mount a disk";
  EXPECT_EQ(result,
            "Cannot save " + disk + "/user.con: No such file or directory. [modified, new]");
}

TEST(DiskUnderAFile, ThatTurnedReadOnlyIsToldAndTheTextStays) {
  const TempDirectory directory;
  const TempDirectory settings;
  const std::string result = SaveAfter(directory.Path(), settings / "settings.db", [&] {
    return ::mount("none", directory.Path().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  });
  if (result == "cannot mount") GTEST_SKIP() << "only the superuser can mount a disk";
  EXPECT_EQ(result,
            "Cannot save " + directory / "user.con" + ": Read-only file system. [modified, new]");
}

}  // namespace
}  // namespace tessel::test
