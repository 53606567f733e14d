// Files that the editor widget cannot show.
#include <gtest/gtest.h>

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

TEST(QtFiles, RefuseALineThatTheEditorCannotShow) {
  const TempDirectory directory;
  const std::string path = directory.Put("user.con", "define A 1\r\n");
  EXPECT_EQ(QtFiles().Read(path), "define A 1\r\n");
  std::filesystem::resize_file(path, kLongestShownLine + 100);  // NULs, which take no room on disk
  try {
    QtFiles().Read(path);
    FAIL() << "it was read";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.what(),
              "Cannot open " + path +
                  ": it has a line of more than 256 MiB, which the editor cannot show.");
  }
}

}  // namespace
}  // namespace tessel::test
