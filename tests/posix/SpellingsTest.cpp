// What exists under a name without regard to case.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "posix/Spellings.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using posix::SpellingsOf;
using testing::ElementsAre;
using testing::IsEmpty;

class Spellings : public testing::Test {
 protected:
  TempDirectory directory_;
};

TEST_F(Spellings, OfAPathAreAllThatDifferOnlyInCase) {
  const std::string upper = directory_.Put("Mods/User.con", "");
  const std::string lower = directory_.Put("mods/user.con", "");
  const std::string mixed = directory_.Put("mods/User.con", "");
  directory_.Put("mods/other.con", "");
  EXPECT_THAT(SpellingsOf(directory_ / "MODS/USER.CON"), ElementsAre(upper, mixed, lower));
  EXPECT_THAT(SpellingsOf(directory_ / "mods/user.con"), ElementsAre(upper, mixed, lower));
}

TEST_F(Spellings, OfWhatIsNotThereAreNone) {
  EXPECT_THAT(SpellingsOf(directory_ / "nothing.con"), IsEmpty());
  EXPECT_THAT(SpellingsOf(directory_ / "no/folder.con"), IsEmpty());
}

TEST_F(Spellings, GoThroughLinksAndBackAsTheSystemDoes) {
  const std::string file = directory_.Put("else/User.con", "");
  std::filesystem::create_directory(directory_ / "else/dir");
  std::filesystem::create_directory_symlink(directory_ / "else/dir", directory_ / "Link");
  EXPECT_THAT(SpellingsOf(directory_ / "link/../USER.CON"),
              ElementsAre(directory_ / "Link/../User.con"));
}

TEST_F(Spellings, AreNotMoreThanAPersonCanBeAsked) {
  for (int i = 0; i < 32; ++i) {
    std::string name = "abcde";
    for (int letter = 0; letter < 5; ++letter) {
      if (i & 1 << letter) name[static_cast<std::size_t>(letter)] -= 'a' - 'A';
    }
    directory_.Put(name, "");
  }
  EXPECT_EQ(SpellingsOf(directory_ / "ABCDE").size(), 16U);
}

}  // namespace
}  // namespace tessel::test
