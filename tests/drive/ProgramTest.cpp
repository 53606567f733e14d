// tessel-drive as it is started: its options.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "support/RunProgram.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class DriveProgram : public testing::Test {
 protected:
  /// Runs the program on these lines; returns its exit status.
  int Start(std::vector<std::string> arguments, const std::string& lines = "") {
    const std::string in = directory.Put("in", lines);
    return RunProgram(TESSEL_DRIVE_PROGRAM, std::move(arguments), [&] {
      return std::freopen(in.c_str(), "r", stdin) != nullptr &&
             std::freopen((directory / "out").c_str(), "w", stdout) != nullptr &&
             std::freopen((directory / "err").c_str(), "w", stderr) != nullptr;
    });
  }
  bool Said(const std::string& part) const {
    return BytesOf(directory / "err").find(part) != std::string::npos;
  }

  TempDirectory directory;
};

TEST_F(DriveProgram, RefusesWhatItDoesNotKnow) {
  EXPECT_EQ(Start({"--nonsense"}), 2);
  EXPECT_TRUE(Said("--nonsense")) << BytesOf(directory / "err");
  EXPECT_EQ(BytesOf(directory / "out"), "");
}

TEST_F(DriveProgram, TellsItsVersion) {
  EXPECT_EQ(Start({"--version"}), 0);
  EXPECT_TRUE(BytesOf(directory / "out").starts_with("tessel-drive "))
      << BytesOf(directory / "out");
}

TEST_F(DriveProgram, KeepsSettingsInTheFileItIsGivenAndSaysThatItCannot) {
  const std::string store = directory / "store.db";
  Start({"--store", store}, "{\"do\":\"state\"}\n");
  EXPECT_NE(BytesOf(directory / "out").find("\"ok\":true"), std::string::npos);
  directory.Put("store.db", "no database at all, but long enough");
  Start({"--store", store}, "{\"do\":\"state\"}\n");
  EXPECT_TRUE(Said("Cannot use the settings store " + store)) << BytesOf(directory / "err");
  EXPECT_NE(BytesOf(directory / "out").find("\"ok\":true"), std::string::npos);
}

}  // namespace
}  // namespace tessel::test
