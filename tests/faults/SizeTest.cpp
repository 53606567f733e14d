// Texts of sizes that nobody expects.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "support/ChildProcess.h"
#include "support/FileLimits.h"
#include "support/RealWorld.h"
#include "support/SystemCalls.h"

namespace tessel::test {
namespace {

using testing::IsEmpty;

constexpr std::uintmax_t kMiB = std::uintmax_t{1} << 20U;

std::uintmax_t FreeMemory() {
  return static_cast<std::uintmax_t>(::sysconf(_SC_AVPHYS_PAGES)) *
         static_cast<std::uintmax_t>(::sysconf(_SC_PAGESIZE));
}

class SizeTest : public testing::Test {
 protected:
  std::string PutSparse(const std::string& name, std::uintmax_t size) {
    const std::string path = directory.Put(name, "define A 1\r\n");
    std::filesystem::resize_file(path, size);
    return path;
  }

  TempDirectory directory;
  std::string store = directory / "settings.db";
};

TEST_F(SizeTest, MegabytesComeThroughTheClipboardWhole) {
  Program program(store);
  std::string megabytes;
  while (megabytes.size() < 16 * kMiB) megabytes += "define A " + std::string(1, '\xE4') + '\0';
  program.Retype("xy");
  program.Editor().SelectByHand(1, 0);
  program.fakes.clipboard.SetText(megabytes);
  program.Choose("mnuRtbPopupEditPaste");
  EXPECT_TRUE(program.Editor().Text() == "x" + megabytes + "y");
  program.fakes.clipboard.Clear();
  program.Choose("mnuRtbPopupEditSel");
  program.Choose("mnuRtbPopupEditCut");
  EXPECT_TRUE(program.fakes.clipboard.GetText() == "x" + megabytes + "y");
  EXPECT_EQ(program.Editor().Length(), 0);
  program.Choose("mnuRtbPopupEditUndo");
  EXPECT_TRUE(program.Editor().Text() == "x" + megabytes + "y");
  EXPECT_THAT(program.Told(), IsEmpty());
}

// Whatever room there is, down to none: the file opens, or it is said why not. What was open stays.
TEST_F(SizeTest, AFileTooBigForTheMemoryIsRefusedAndNothingIsLost) {
  if (!kCallsCanFail) GTEST_SKIP() << "sanitizers need the memory for themselves";
  const std::string other = directory.Put("other.con", "define B 1");
  const std::string big = PutSparse("big.con", 256 * kMiB);
  int refused = 0;
  int opened = 0;
  for (std::uintmax_t room = 128 * kMiB; room <= 1024 * kMiB; room += 128 * kMiB) {
    const std::string result = InChild([&] {
      Program program(store);
      program.Open(other);
      program.Editor().SetSelText("typed ");
      LimitMemory(room);
      program.Open(big);
      const std::string told = program.ToldInALine();
      if (told.empty()) return std::string("opened");
      const std::string text = program.Editor().Text();
      const bool kept = program.DocumentTab().caption == "other.con" && program.Modified() &&
                        program.Controls().tbsRtb.Count() == 1 && text == "typed define B 1";
      return told +
             (kept ? " Kept."
                   : " Lost: " + program.DocumentTab().caption + " " + std::to_string(text.size()));
    });
    if (result == "opened") {
      ++opened;
    } else {
      ++refused;
      EXPECT_EQ(result, "Cannot open " + big + ": Cannot allocate memory. Kept.") << room / kMiB;
    }
  }
  EXPECT_GE(refused, 1);
  EXPECT_GE(opened, 1);
}

TEST_F(SizeTest, AFileOfTwoGibibytesIsRefusedWhereThereIsNoRoom) {
  if (!kCallsCanFail) GTEST_SKIP() << "sanitizers need the memory for themselves";
  const std::string big = PutSparse("big.con", 2048 * kMiB);
  EXPECT_EQ(InChild([&] {
              LimitMemory(1024 * kMiB);
              Program program(store);
              program.Open(big);
              return program.ToldInALine();
            }),
            "Cannot open " + big + ": Cannot allocate memory.");
}

// It takes the text, its colours, and some time.
TEST_F(SizeTest, AFileOfTwoGibibytesOpensWhereThereIsRoom) {
  if (!kCallsCanFail) GTEST_SKIP() << "sanitizers need the memory for themselves";
  if (FreeMemory() < 8192 * kMiB) GTEST_SKIP() << "there is too little memory";
  const std::string big = PutSparse("big.con", 2048 * kMiB);
  EXPECT_EQ(InChild([&] {
              Program program(store);
              program.Open(big);
              const bool whole = program.Editor().Length() == Position{1} << 31 &&
                                 program.Editor().Bytes().starts_with("define A 1\r\n");
              return program.ToldInALine() + (whole ? "whole" : "not whole");
            }),
            "whole");
}

TEST_F(SizeTest, AClipboardTooBigForTheMemoryIsToldAndTheTextStays) {
  if (!kCallsCanFail) GTEST_SKIP() << "sanitizers need the memory for themselves";
  int refused = 0;
  for (std::uintmax_t room = 256 * kMiB; room <= 1024 * kMiB; room += 64 * kMiB) {
    const std::string result = InChild([&] {
      Program program(store);
      program.Retype("xy");
      program.Editor().SelectByHand(1, 1);
      program.fakes.clipboard.SetText(std::string(128 * kMiB, 'm'));
      LimitMemory(room);
      program.Choose("mnuRtbPopupEditPaste");
      const std::string told = program.ToldInALine();
      const std::string text = told.empty() ? std::string("pasted") : program.Editor().Text();
      if (program.Editor().Store().Runs(0, program.Editor().Length()).size() != 1)
        return std::string("torn");
      if (!told.empty()) program.Editor().Type("z");
      while (program.Editor().CanUndo()) program.Editor().Undo();
      return told + " " + text + " " + std::to_string(program.Editor().Length());
    });
    if (result == " pasted 0") continue;
    ++refused;
    EXPECT_EQ(result, "There is not enough memory for this. xy 0") << room / kMiB;
  }
  EXPECT_GE(refused, 1);
}

}  // namespace
}  // namespace tessel::test
