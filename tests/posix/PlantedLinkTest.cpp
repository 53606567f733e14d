// What somebody else has put into a shared folder for this user to meet.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "posix/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned kSomebodyElse = 1234;

class PlantedLinkTest : public testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs two users";
    std::filesystem::create_directory(shared);
    ASSERT_EQ(::chmod(shared.c_str(), 01777), 0);
    precious = directory.Put("home/precious", "old");
    GiveToOrdinaryUser(precious);
    GiveToOrdinaryUser(directory / "home");
  }
  void Plant(const std::string& name, const std::string& target, unsigned owner = kSomebodyElse) {
    const std::string link = shared + "/" + name;
    std::filesystem::create_symlink(target, link);
    ASSERT_EQ(::lchown(link.c_str(), owner, owner), 0);
  }
  std::string SaveAs(const std::string& name) {
    return AsOrdinaryUser([&] {
      PosixFiles().WriteAs(shared + "/" + name, "new");
      return "saved";
    });
  }
  std::string Save(const std::string& name) {
    return AsOrdinaryUser([&] {
      PosixFiles().Write(shared + "/" + name, "new");
      return "saved";
    });
  }
  std::string Refusal(const std::string& name) const {
    return "error: Cannot save " + shared + "/" + name +
           ": a symbolic link of somebody else leads there, in a folder that everybody can write "
           "to.";
  }

  TempDirectory directory;
  std::string shared = directory / "shared";
  std::string precious;
};

TEST_F(PlantedLinkTest, IsNotFollowedByASave) {
  Plant("report.con", precious);
  EXPECT_EQ(SaveAs("report.con"), Refusal("report.con"));
  EXPECT_EQ(Save("report.con"), Refusal("report.con"));
  EXPECT_EQ(BytesOf(precious), "old");
}

TEST_F(PlantedLinkTest, IsNotFollowedToAFileThatIsMissing) {
  Plant("report.con", directory / "home/.profile");
  EXPECT_EQ(SaveAs("report.con"), Refusal("report.con"));
  EXPECT_FALSE(std::filesystem::exists(directory / "home/.profile"));
}

TEST_F(PlantedLinkTest, IsNotFollowedToAFolder) {
  Plant("out", directory / "home");
  EXPECT_EQ(SaveAs("out/precious"), Refusal("out/precious"));
  EXPECT_EQ(BytesOf(precious), "old");
}

TEST_F(PlantedLinkTest, IsNotFollowedBehindALinkOfOnesOwn) {
  Plant("report.con", precious);
  const std::string own = directory / "home/own.con";
  std::filesystem::create_symlink(shared + "/report.con", own);
  EXPECT_EQ(AsOrdinaryUser([&] {
              PosixFiles().Write(own, "new");
              return "saved";
            }),
            "error: Cannot save " + own + Refusal("").substr(Refusal("").rfind(": a symbolic")));
  EXPECT_EQ(BytesOf(precious), "old");
}

TEST_F(PlantedLinkTest, InAnotherSpellingIsNotFoundAtAll) {
  Plant("REPORT.CON", precious);
  EXPECT_EQ(Save("report.con"), "saved");
  EXPECT_EQ(BytesOf(precious), "old");
  EXPECT_EQ(BytesOf(shared + "/report.con"), "new");
}

TEST_F(PlantedLinkTest, NorIsAFileOfSomebodyElseInAnotherSpelling) {
  const std::string theirs = directory.Put("shared/REPORT.CON", "theirs");
  ASSERT_EQ(::chown(theirs.c_str(), kSomebodyElse, kSomebodyElse), 0);
  ASSERT_EQ(::chmod(theirs.c_str(), 0666), 0);
  EXPECT_THAT(AsOrdinaryUser([&] { return PosixFiles().Read(shared + "/report.con"); }),
              testing::HasSubstr("No such file or directory"));
  EXPECT_EQ(Save("report.con"), "saved");
  EXPECT_EQ(BytesOf(theirs), "theirs");
}

TEST_F(PlantedLinkTest, LeavesAReadOnlyFileReadOnly) {
  ASSERT_EQ(::chmod(precious.c_str(), 0444), 0);
  Plant("report.con", precious);
  AsOrdinaryUser([&] {
    PosixFiles().SetAttributesNormal(shared + "/report.con");
    return "";
  });
  EXPECT_EQ(ModeOf(precious), 0444U);
}

TEST_F(PlantedLinkTest, IsNoneThatThisUserOrTheFoldersOwnerMade) {
  Plant("own.con", precious, kNobody);
  EXPECT_EQ(SaveAs("own.con"), "saved");
  EXPECT_EQ(BytesOf(precious), "new");
  directory.Put("home/precious", "old");
  Plant("owners.con", precious, 0);
  EXPECT_EQ(SaveAs("owners.con"), "saved");
  EXPECT_EQ(BytesOf(precious), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(shared + "/owners.con"));
}

TEST_F(PlantedLinkTest, IsNoneInAFolderThatIsNotShared) {
  ASSERT_EQ(::chmod(shared.c_str(), 0777), 0);
  Plant("report.con", precious);
  EXPECT_EQ(SaveAs("report.con"), "saved");
  EXPECT_EQ(BytesOf(precious), "new");
}

}  // namespace
}  // namespace tessel::test
