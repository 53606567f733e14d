// A bus with more calls than a person could wish for, and one that dies.
#include <QSignalSpy>
#include <optional>
#include <vector>

#include "automation/Automation.h"
#include "automation/AutomationFixture.h"
#include "automation/BusName.h"
#include "automation/OwnBus.h"

namespace tessel::test {
namespace {

// --- Ten thousand calls in a row

constexpr int kCalls = 10'000;

bool IsOfAnUnknownMethod(int call) { return call % 10 == 9; }

TEST_F(AutomationTest, AnswersTenThousandCallsInARowAndLetsAPersonTypeMeanwhile) {
  const Automation offer(*control_.widget, bus_);
  control_.Open("define A 1\r\n");
  std::vector<QDBusPendingCall> calls;
  calls.reserve(kCalls);
  for (int i = 0; i < kCalls; ++i) {
    calls.push_back(IsOfAnUnknownMethod(i)
                        ? Call(offer.Path(), "Revert")
                        : Call(offer.Path(), "SetTesselVersion", {QString::number(i)}));
  }
  RichTextBox& editor = control_.Controls().rtbCon[0];
  int typed = 0;
  while (!calls.back().isFinished() && typed < kCalls) {
    editor.Type("x");
    ++typed;
    QTest::qWait(5);
  }
  EXPECT_GE(typed, 5) << "the calls were through before anybody could type";
  for (int i = 0; i < kCalls; ++i) {
    const QDBusPendingCall& call = calls[static_cast<std::size_t>(i)];
    Await(call);
    const bool unknown = IsOfAnUnknownMethod(i);
    ASSERT_EQ(call.error().name(),
              unknown ? QString("org.freedesktop.DBus.Error.UnknownMethod") : QString());
    ASSERT_EQ(call.reply().arguments().value(0) == QString::number(i), !unknown);
  }
  EXPECT_EQ(control_.Text(), std::string(static_cast<std::size_t>(typed), 'x') + "define A 1\r\n");
  EXPECT_TRUE(control_.services.messages.shown.empty());
}

// --- A bus that dies

class DyingBus : public AutomationTest {
 protected:
  ~DyingBus() override {
    for (const char* name : {"its host", "its client"}) QDBusConnection::disconnectFromBus(name);
  }
  QDBusConnection Connect(const char* name) const {
    return QDBusConnection::connectToBus(daemon_.Address(), name);
  }
  QDBusPendingCall CallThere(const QString& path, const QString& method) {
    return client_.asyncCall(
        QDBusMessage::createMethodCall(host_.baseService(), path, "Tessel.ucTessel", method));
  }
  void Die() {
    daemon_.Kill();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !host_.isConnected() && !client_.isConnected(); },
                                kLongEnough));
  }
  /// Types, saves, and looks whether it all works as ever.
  void ExpectToGoOn(const std::string& text) {
    control_.Controls().rtbCon[0].SelectByHand(0, 0);
    control_.Controls().rtbCon[0].Type("typed ");
    EXPECT_EQ(control_.Text(), "typed " + text);
    control_.Controls().mnuRtbPopup.Choose("mnuRtbPopupFileSave");
    EXPECT_EQ(control_.services.files.Read("/con/user.con"), "typed " + text);
    EXPECT_EQ(control_.Controls().tbsRtb.At(1).image, "BlackDot");
  }

  OwnBus daemon_;
  QDBusConnection host_ = Connect("its host");
  QDBusConnection client_ = Connect("its client");
};

TEST_F(DyingBus, LeavesTheControlAsItIs) {
  auto offer = std::make_unique<Automation>(*control_.widget, host_);
  auto name = std::make_unique<BusName>(host_, "org.zanthman.Test", BusName::WhenTaken::kWait);
  control_.Open("define A 1\r\n");
  const QDBusPendingCall call = CallThere(offer->Path(), "Revert");
  Await(call);
  ASSERT_EQ(call.error().name(), "org.freedesktop.DBus.Error.UnknownMethod");
  Die();
  ExpectToGoOn("define A 1\r\n");
  name.reset();
  offer.reset();
  const Automation refused(*control_.widget, host_);
  EXPECT_TRUE(refused.Problem().contains("there is no bus")) << refused.Problem().toStdString();
}

TEST_F(DyingBus, EndsNoCommandThatItHasBroughtOnItsWay) {
  const Automation offer(*control_.widget, host_);
  control_.Open("definelevelname 0 0 E1L1.map 01:45 00:53 NOTHING ELSE\r\n");
  const std::string text = control_.Text();
  bool answered = false;
  control_.services.messages.meanwhile = [&] {
    Die();
    answered = true;
  };
  CallThere(offer.Path(), "Convert");
  ASSERT_TRUE(QTest::qWaitFor([&] { return answered; }, kLongEnough));
  QCoreApplication::processEvents();
  EXPECT_FALSE(control_.widget->Tessel().Running());
  ExpectToGoOn(text);
}

}  // namespace
}  // namespace tessel::test
