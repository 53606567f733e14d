// Names that look like markup in the window's own bars, lists and dialogs.
#include <algorithm>

#include "HostFixture.h"
#include "host/RecoveryKeeper.h"
#include "support/ShownTexts.h"

namespace tessel::test {
namespace {

class HostMarkup : public HostTest, public testing::WithParamInterface<const char*> {};

TEST_P(HostMarkup, IsShownAsItIs) {
  const std::string name = GetParam();
  const std::string file = directory_.Put("<img src=x/" + name, "define A 1\r\n");
  Run().window->OpenFiles({file});
  Run().Editor(0).Type("2 ");
  Run().SaveInPlace();  // makes a backup
  Run().Editor(0).Type("3 ");
  ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow());
  Restart();  // the text is offered
  Run().window->OpenFiles({file});
  directory_.Put("<img src=x/" + name, "of another program");
  const auto barsTell = [] {
    return std::ranges::count(ShownTextsWith("-marker"), "plain label", &ShownText::where) >= 2;
  };
  Run().MenuItem("&Backups...")->trigger();
  EXPECT_TRUE(QTest::qWaitFor(barsTell, 5000)) << "the offer and the notice";
  for (const ShownText& shown : ShownTextsWith("-marker")) {
    EXPECT_TRUE(shown.text.contains(QString::fromStdString(name), Qt::CaseInsensitive))
        << shown.where << ": " << shown.text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Names, HostMarkup,
                         testing::Values("<b>bold-marker.con", "<h1>x<u>-marker.con",
                                         "<img src=pipe>-marker.con", "a & b &lt;-marker.con"));

}  // namespace
}  // namespace tessel::test
