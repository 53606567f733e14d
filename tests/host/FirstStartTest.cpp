// What the window tells at the first start.
#include "HostFixture.h"
#include "host/FirstStartHint.h"

namespace tessel::test {
namespace {

class FirstStart : public HostTest {
 protected:
  bool Told() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto* hint = Run().window->findChild<FirstStartHint*>();
    return hint != nullptr && hint->isVisible();
  }
};

TEST_F(FirstStart, TellsWhatToDoOnce) {
  EXPECT_FALSE(Told());
  Run().window->ShowFirstHint();
  EXPECT_TRUE(Told());
  CloseAndStartAgain();
  Run().window->ShowFirstHint();
  EXPECT_FALSE(Told());
}

TEST_F(FirstStart, TellsItUntilTheHintIsClosed) {
  Run().window->ShowFirstHint();
  ASSERT_TRUE(Run().Press<FirstStartHint>("&Close Hint"));
  EXPECT_FALSE(Told());
}

TEST_F(FirstStart, TellsItUntilADocumentIsOpened) {
  Run().window->ShowFirstHint();
  Run().window->OpenFiles({directory_.Put("user.con", "define A 1\r\n")});
  EXPECT_FALSE(Told());
}

TEST_F(FirstStart, TellsNothingOverADocument) {
  Run().window->OpenFiles({directory_.Put("user.con", "define A 1\r\n")});
  Run().window->ShowFirstHint();
  EXPECT_FALSE(Told());
}

}  // namespace
}  // namespace tessel::test
