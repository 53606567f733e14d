// The program is in the locale of the person, and its templates may be missing there.
#include <clocale>
#include <cstdlib>

#include "HostFixture.h"

namespace tessel::test {
namespace {

// The tests in tests/locales show nothing where the locale is not in force.
TEST(Locale, IsThatOfThePerson) {
  const char* wanted = std::getenv("TESSEL_DECIMAL_POINT");
  if (wanted == nullptr) GTEST_SKIP() << "it has no meaning outside of tests/locales";
  EXPECT_STREQ(std::localeconv()->decimal_point, wanted);
  EXPECT_EQ(QLocale::system().decimalPoint().toStdString(), wanted);
}

class Templates : public HostTest {};

TEST_F(Templates, ThatAreMissingAreNamedAndNothingElseSuffers) {
  const std::string user = directory_.Put("user.con", "define A 1\r\n");
  Run().Editor(0).Type("typed");
  Run().Controls().tbToolBar.PressMenuItem("FileNew", 1);
  ASSERT_EQ(Run().fakes.messages.shown.size(), 1U);
  EXPECT_EQ(Run().fakes.messages.shown[0].text,
            "File " + Run().fakes.hostDirectory + "/zmuser.dat not found.");
  EXPECT_EQ(Run().Editor(0).Text(), "typed");
  Run().window->OpenFiles({user});
  EXPECT_EQ(Run().Tabs().At(1).tag, user);
}

}  // namespace
}  // namespace tessel::test
