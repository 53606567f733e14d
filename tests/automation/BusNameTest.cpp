#include <QApplication>
#include <QSignalSpy>
#include <QTimer>

#include "automation/AutomationFixture.h"
#include "automation/BusName.h"
#include "host/HostAutomation.h"

namespace tessel::test {
namespace {

constexpr const char* kName = "org.zanthman.Test";

class BusNameTest : public AutomationTest {
 protected:
  /// Lets events pass until that program has the name, or nobody when there is none.
  void AwaitOwner(const QString& name, const QString& owner) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return OwnerOf(name) == owner; }, kLongEnough));
  }
};

TEST_F(BusNameTest, WaitsForTheNameAndGivesItBack) {
  auto first = std::make_unique<BusName>(other_, kName, BusName::WhenTaken::kWait);
  AwaitOwner(kName, other_.baseService());
  auto second = std::make_unique<BusName>(bus_, kName, BusName::WhenTaken::kWait);
  QSignalSpy refused(second.get(), &BusName::refused);
  EXPECT_EQ(OwnerOf(kName), other_.baseService());
  first.reset();
  AwaitOwner(kName, bus_.baseService());
  second.reset();
  AwaitOwner(kName, "");
  EXPECT_TRUE(refused.isEmpty());
}

TEST_F(BusNameTest, TellsThatTheNameIsTaken) {
  const BusName first(other_, kName, BusName::WhenTaken::kRefuse);
  AwaitOwner(kName, other_.baseService());
  const BusName second(bus_, kName, BusName::WhenTaken::kRefuse);
  QSignalSpy refused(&second, &BusName::refused);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !refused.isEmpty(); }, kLongEnough));
  EXPECT_EQ(refused[0][0].toString(),
            "The name org.zanthman.Test on the bus is taken by another program.");
}

TEST_F(BusNameTest, TellsWhatTheBusSays) {
  const BusName bad(bus_, "no name", BusName::WhenTaken::kWait);
  QSignalSpy refused(&bad, &BusName::refused);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !refused.isEmpty(); }, kLongEnough));
  EXPECT_TRUE(refused[0][0].toString().startsWith("The bus does not give the name no name: "));
}

TEST_F(BusNameTest, TheHostIsOffTheBusWhenItsWindowHasBeenClosed) {
  QStringList problems;
  const HostAutomation host(*control_.widget, [&](const QString& problem) { problems += problem; });
  const QString instance =
      QString("org.zanthman.ZanthManager.instance%1").arg(QCoreApplication::applicationPid());
  AwaitOwner("org.zanthman.ZanthManager", bus_.baseService());
  AwaitOwner(instance, bus_.baseService());
  control_.widget->show();
  // Only a running program has a last window.
  QTimer::singleShot(0, control_.widget.get(), &QWidget::close);
  QObject::connect(qApp, &QGuiApplication::lastWindowClosed, qApp, &QCoreApplication::quit);
  QApplication::exec();
  AwaitOwner("org.zanthman.ZanthManager", "");
  AwaitOwner(instance, "");
  EXPECT_EQ(problems, QStringList());
}

}  // namespace
}  // namespace tessel::test
