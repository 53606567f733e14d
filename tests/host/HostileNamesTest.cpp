// Names of files that look like something else, on all ways through the window.
#include <algorithm>

#include "HostFixture.h"
#include "host/RecoveryKeeper.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

class HostileName : public HostTest, public testing::WithParamInterface<std::string> {};

TEST_P(HostileName, IsTheNameOfItsFileEverywhere) {
  const std::string path = directory_.Put(GetParam(), "define A 1\r\n");
  Run().window->OpenFiles({path});
  ASSERT_EQ(Run().Tabs().At(1).tag, path);
  EXPECT_EQ(Run().Tabs().At(1).caption, AsciiLower(GetParam()));
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();
  EXPECT_EQ(BytesOf(path), "2 define A 1\r\n");
  ASSERT_EQ(Run().backups.List().size(), 1U);
  EXPECT_EQ(Run().backups.List()[0].path, path);
  EXPECT_EQ(Run().backups.Read(Run().backups.List()[0]).bytes, "define A 1\r\n");
  Run().Editor(0).Type("3 ");
  ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow());
  Restart();
  ASSERT_TRUE(Run().Press<QWidget>("&Recover"));
  EXPECT_EQ(Run().Tabs().At(1).tag, path);
  EXPECT_EQ(Run().Editor(0).Text(), "2 3 define A 1\r\n");
  EXPECT_TRUE(Run().fakes.messages.shown.empty());
  // Beside the state folder and the settings there is nothing else.
  const auto names = directory_.Names();
  EXPECT_EQ(std::ranges::count_if(names, [](const auto& name) { return name.ends_with("con"); }),
            GetParam().ends_with("con") ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Of, HostileName,
                         testing::Values("a\nb.con", "a\tb.con", "%n %1 %s.con",
                                         "\"q\" 'q' `q`.con", "a;b|c.con", "-o.con", "a.con.",
                                         "a.con ", " a.con", "..con",
                                         std::string(251, 'n') + ".con", "\u202Enoc.a.con",
                                         "&a && b.con", "$HOME~.con", "a\\b.con", "\xFF\xFE.con",
                                         "\x80\xE4.con", "a\x1b[31m\x07.con"));

}  // namespace
}  // namespace tessel::test
