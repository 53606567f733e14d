// Files that the editor widget cannot show.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "base/RuntimeError.h"
#include "qt/services/QtFiles.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

TEST(QtFiles, TellHowLongTheLinesOfATextAre) {
  EXPECT_TRUE(LinesAreUpTo("", 3));
  EXPECT_TRUE(LinesAreUpTo("abc", 3));
  EXPECT_FALSE(LinesAreUpTo("abcd", 3));
  EXPECT_TRUE(LinesAreUpTo("abc\r\nabc\nabc\rabc", 3));
  EXPECT_FALSE(LinesAreUpTo("abc\r\nabcd", 3));
  EXPECT_FALSE(LinesAreUpTo("abcd\r\nabc", 3));
  EXPECT_TRUE(LinesAreUpTo("\n\n\n\n\n\n", 3));
}

/// What is said of a file of that length; NULs take no room on the disk.
std::string RefusalOfLength(std::uintmax_t length) {
  const TempDirectory directory;
  const std::string path = directory.Put("user.con", "define A 1\r\n");
  std::filesystem::resize_file(path, length);
  try {
    QtFiles().Read(path);
    return "it was read";
  } catch (const RuntimeError& error) {
    const std::string told = error.what();
    return told.substr(std::min(told.size(), ("Cannot open " + path + ": ").size()));
  }
}

TEST(QtFiles, RefuseALineThatTheEditorCannotShow) {
  EXPECT_EQ(RefusalOfLength(12), "it was read");
  EXPECT_EQ(RefusalOfLength(kLongestShownLine + 100),
            "it has a line of more than 256 MiB, which the editor cannot show.");
}

TEST(QtFiles, RefuseATextThatTheEditorCannotShow) {
  constexpr std::uintmax_t kGiB = std::uintmax_t{1} << 30;
  for (const auto length : {kGiB / 2 + 1, kGiB, 2 * kGiB - 1, 2 * kGiB, 4 * kGiB + 1, 64 * kGiB}) {
    EXPECT_EQ(RefusalOfLength(length), "it has more than 512 MiB, which the editor cannot show.")
        << length;
  }
}

}  // namespace
}  // namespace tessel::test
