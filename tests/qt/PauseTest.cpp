// What waits for a moment in which nothing happens.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "qt/base/Pause.h"

namespace tessel::test {
namespace {

using namespace std::chrono_literals;

TEST(Pause, IsOverOnce) {
  Pause pause(1ms, nullptr);
  QSignalSpy over(&pause, &Pause::over);
  pause.Begin();
  ASSERT_TRUE(over.wait());
  QTest::qWait(20);
  EXPECT_EQ(over.count(), 1);
}

TEST(Pause, IsNotOverWhileSomethingHappens) {
  Pause pause(400ms, nullptr);
  const QSignalSpy over(&pause, &Pause::over);
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < 1000) {
    pause.Begin();
    QTest::qWait(1);
  }
  EXPECT_EQ(over.count(), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return over.count() == 1; }));
}

}  // namespace
}  // namespace tessel::test
