#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "models/ControlsFixture.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

TEST(EventTest, CallsHandlersInTheOrderOfConnecting) {
  Event<int> event;
  std::vector<int> calls;
  const Subscription first = event.Connect([&](int i) { calls.push_back(i); });
  const Subscription second = event.Connect([&](int i) { calls.push_back(i * 10); });
  event.Raise(1);
  event.Raise(2);
  EXPECT_THAT(calls, ElementsAre(1, 10, 2, 20));
}

TEST(EventTest, CallsAHandlerForAsLongAsItsSubscriptionLives) {
  Event<> event;
  int calls = 0;
  Subscription subscription = event.Connect([&] { ++calls; });
  event.Raise();
  subscription.reset();
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(EventTest, LetsHandlersConnectAndDropOthersMeanwhile) {
  Event<> event;
  std::vector<std::string> calls;
  Subscription dropped;
  Subscription added;
  const Subscription first = event.Connect([&] {
    calls.push_back("first");
    dropped.reset();
    if (!added) added = event.Connect([&] { calls.push_back("added"); });
  });
  dropped = event.Connect([&] { calls.push_back("dropped"); });
  event.Raise();
  EXPECT_THAT(calls, ElementsAre("first", "added"));
}

TEST(EventTest, LetsAHandlerDropItselfAndRaiseAgain) {
  Event<> event;
  int calls = 0;
  Subscription self;
  self = event.Connect([&] {
    if (++calls < 3) event.Raise();
    self.reset();
  });
  event.Raise();
  event.Raise();
  EXPECT_EQ(calls, 3);
}

TEST(EventTest, CallsNoHandlerThatANestedRaiseDropped) {
  Event<> event;
  std::vector<std::string> calls;
  Subscription dropped;
  bool nested = false;
  const Subscription first = event.Connect([&] {
    calls.push_back("first");
    if (std::exchange(nested, true)) {
      dropped.reset();
    } else {
      event.Raise();
    }
  });
  dropped = event.Connect([&] { calls.push_back("dropped"); });
  const Subscription last = event.Connect([&] { calls.push_back("last"); });
  event.Raise();
  EXPECT_THAT(calls, ElementsAre("first", "first", "last", "last"));
}

TEST(EventTest, FreesWhatADroppedHandlerHoldsWithALaterRaise) {
  Event<> event;
  const auto held = std::make_shared<int>(0);
  const Subscription other = event.Connect([] {});
  event.Connect([held] {}).reset();
  event.Raise();
  EXPECT_EQ(held.use_count(), 1);
}

TEST(EventTest, MayEndBeforeItsSubscriptions) {
  Subscription subscription;
  {
    Event<> event;
    subscription = event.Connect([] {});
  }
  EXPECT_NO_THROW(subscription.reset());
}

TEST(EventTest, StaysUsableAfterAnExceptionOfAHandler) {
  Event<> event;
  int calls = 0;
  const Subscription subscription = event.Connect([&] {
    if (++calls == 1) throw std::runtime_error("first");
  });
  EXPECT_THROW(event.Raise(), std::runtime_error);
  event.Raise();
  EXPECT_EQ(calls, 2);
}

}  // namespace
}  // namespace tessel::test
