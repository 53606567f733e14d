// The recent-file list and its mirror in the settings store.
#include "documents/RecentFiles.h"
#include "services/Paths.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using Entries = std::vector<SettingsStore::Entry>;

class RecentFiles : public TesselTest {
 protected:
  void Add(const std::string& name, const std::string& path) {
    AddRecentFile(C().tbToolBar, world_.settings, name, path);
  }
  Entries Stored() { return world_.settings.GetAllSettings("PreviousCons"); }
};

TEST_F(RecentFiles, StandBehindTheLastSeparatorTheNewestFirst) {
  const int before = C().tbToolBar.MenuCount("FileNew");
  EXPECT_TRUE(C().tbToolBar.MenuItem("FileNew", before).IsSeparator());
  EXPECT_EQ(FirstRecentFile(C().tbToolBar), before + 1);
  Open("/cons/a.con", "A");
  Open("/cons/B.con", "B");
  EXPECT_EQ(C().tbToolBar.MenuCount("FileNew"), before + 2);
  EXPECT_EQ(FirstRecentFile(C().tbToolBar), before + 1);
  const ButtonMenuItem& newest = C().tbToolBar.MenuItem("FileNew", before + 1);
  EXPECT_EQ(newest.text, "B.con");
  EXPECT_EQ(newest.key, "");
  EXPECT_EQ(newest.tag, "/cons/B.con");
  EXPECT_EQ(C().tbToolBar.MenuItem("FileNew", before + 2).text, "a.con");
  EXPECT_EQ(Stored(), (Entries{{"A.CON", "/CONS/A.CON"}, {"B.CON", "/CONS/B.CON"}}));
}

TEST_F(RecentFiles, KeepTheirPlaceWhenOpenedAgain) {
  Add("a", "/a");
  Add("b", "/b");
  Add("a", "/a");
  EXPECT_THAT(RecentNames(), ElementsAre("b", "a"));
}

TEST_F(RecentFiles, AreComparedByNameAndPathWithTheirCase) {
  Add("a", "/a");
  Add("A", "/a");
  Add("a", "/A");
  Add("a", "/a");
  EXPECT_THAT(RecentNames(), ElementsAre("a", "A", "a"));
  EXPECT_EQ(Stored(), (Entries{{"A", "/A"}}));
}

TEST_F(RecentFiles, AreFiveAtMost) {
  for (const char* name : {"1", "2", "3", "4", "5", "6"}) Add(name, std::string("/") + name);
  EXPECT_THAT(RecentNames(), ElementsAre("6", "5", "4", "3", "2"));
  EXPECT_EQ(Stored(), (Entries{{"2", "/2"}, {"3", "/3"}, {"4", "/4"}, {"5", "/5"}, {"6", "/6"}}));
  Add("2", "/2");
  EXPECT_THAT(RecentNames(), ElementsAre("6", "5", "4", "3", "2"));
}

TEST_F(RecentFiles, OfOneNameShareTheirEntryInTheStore) {
  Add("a.con", "/one/a.con");
  Add("a.con", "/two/a.con");
  EXPECT_THAT(RecentNames(), ElementsAre("a.con", "a.con"));
  EXPECT_EQ(Stored(), (Entries{{"A.CON", "/TWO/A.CON"}}));
}

TEST_F(RecentFiles, AreUpperCasedByWindows1252InTheStore) {
  Add("\xe9t\xe9", "/\xe9t\xe9");
  EXPECT_EQ(Stored(), (Entries{{"\xc9T\xc9", "/\xc9T\xc9"}}));
}

TEST_F(RecentFiles, ThatMakeRoomLeaveTheStoreWhateverTheirLetters) {
  for (const char* name : {"\xe9t\xe9", "2", "3", "4", "5", "6"})
    Add(name, std::string("/") + name);
  EXPECT_EQ(Stored(), (Entries{{"2", "/2"}, {"3", "/3"}, {"4", "/4"}, {"5", "/5"}, {"6", "/6"}}));
}

TEST_F(RecentFiles, MayBeCalledLikeASeparator) {
  const int before = C().tbToolBar.MenuCount("FileNew");
  Add("-", "/cons/-");
  ASSERT_EQ(C().tbToolBar.MenuCount("FileNew"), before + 1);
  EXPECT_TRUE(C().tbToolBar.MenuItem("FileNew", before).IsSeparator());
  EXPECT_FALSE(C().tbToolBar.MenuItem("FileNew", before + 1).IsSeparator());
  EXPECT_EQ(FirstRecentFile(C().tbToolBar), before + 1);
}

TEST_F(RecentFiles, AreNoSeparators) {
  const int before = C().tbToolBar.MenuCount("FileNew");
  world_.settings.SaveSetting("PreviousCons", "-", "");
  LoadRecentFiles(C().tbToolBar, world_.settings);
  EXPECT_EQ(C().tbToolBar.MenuCount("FileNew"), before);
}

TEST_F(RecentFiles, ComeBackAtTheStartWithTheLastOneOnTop) {
  world_.settings.SaveSetting("PreviousCons", "one.con", "/cons/one.con");
  world_.settings.SaveSetting("PreviousCons", "TWO.CON", "/CONS/TWO.CON");
  EXPECT_THAT(RecentNames(), ElementsAre("TWO.CON", "ONE.CON"));
  EXPECT_EQ(C().tbToolBar.MenuItem("FileNew", FirstRecentFile(C().tbToolBar) + 1).tag,
            "/CONS/ONE.CON");
}

TEST_F(RecentFiles, AreOpenedByTheirItem) {
  world_.settings.SaveSetting("PreviousCons", "USER.CON", "/CONS/USER.CON");
  world_.files.files["/cons/User.con"] = "A";
  ChooseRecentFile(C().tbToolBar, 0);
  EXPECT_EQ(Current().Text(), "A");
  EXPECT_EQ(TabOf(0).caption, "user.con");
  EXPECT_EQ(TabOf(0).tag, "/CONS/USER.CON");
  EXPECT_THAT(RecentNames(), ElementsAre("USER.CON"));
}

TEST_F(RecentFiles, OpenedAgainAsTypedAddASecondItem) {
  world_.settings.SaveSetting("PreviousCons", "USER.CON", "/CONS/USER.CON");
  Open("/cons/User.con", "A");
  EXPECT_THAT(RecentNames(), ElementsAre("User.con", "USER.CON"));
  EXPECT_EQ(Stored(), (Entries{{"USER.CON", "/CONS/USER.CON"}}));
}

TEST_F(RecentFiles, ThatAreGoneAreReported) {
  world_.settings.SaveSetting("PreviousCons", "GONE.CON", "/GONE.CON");
  ChooseRecentFile(C().tbToolBar, 0);
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("File /GONE.CON not found.")));
  EXPECT_THAT(RecentNames(), ElementsAre("GONE.CON"));
}

TEST_F(RecentFiles, AllComeBackFromAStoreThatCannotBeWritten) {
  world_.settings.SaveSetting("PreviousCons", "ONE", "/ONE");
  world_.settings.SaveSetting("PreviousCons", "TWO", "/TWO");
  store_.failsWriting = true;
  EXPECT_THAT(RecentNames(), ElementsAre("TWO", "ONE"));
}

TEST(BackslashIfNeeded, EndsADirectoryOnce) {
  EXPECT_EQ(BackslashIfNeeded("C:\\a"), "\\");
  EXPECT_EQ(BackslashIfNeeded("C:\\a\\"), "");
  EXPECT_EQ(BackslashIfNeeded(""), "\\");
  EXPECT_EQ(BackslashIfNeeded("/a", '/'), "/");
  EXPECT_EQ(BackslashIfNeeded("/a/", '/'), "");
  EXPECT_EQ(BackslashIfNeeded("/a\\", '/'), "/");
}

TEST(NameOfPath, StandsBehindTheLastSeparator) {
  EXPECT_EQ(NameOfPath("C:\\a\\b.con"), "b.con");
  EXPECT_EQ(NameOfPath("b.con"), "b.con");
  EXPECT_EQ(NameOfPath("C:\\a\\"), "");
  EXPECT_EQ(NameOfPath("/a\\b/c", '/'), "c");
}

TEST(FileExists, FollowsTheListing) {
  MemoryFiles files;
  files.files["/dir/a.con"] = "";
  EXPECT_TRUE(FileExists(files, "/dir/a.con"));
  EXPECT_TRUE(FileExists(files, "/DIR/A.con"));
  EXPECT_TRUE(FileExists(files, "/dir/"));
  EXPECT_TRUE(FileExists(files, "/dir/*.con"));
  EXPECT_FALSE(FileExists(files, "/dir"));
  EXPECT_FALSE(FileExists(files, "/dir/b.con"));
  EXPECT_FALSE(FileExists(files, ""));
}

}  // namespace
}  // namespace tessel::test
