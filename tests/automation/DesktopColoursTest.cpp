// The colours follow the desktop's portal, whatever becomes of it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QTest>
#include <map>
#include <memory>

#include "host/theme/DesktopColours.h"
#include "host/theme/ProgramTheme.h"
#include "support/FakeServices.h"

namespace tessel::test {
namespace {

constexpr const char* kPortalName = "org.freedesktop.portal.Desktop";
constexpr const char* kObject = "/org/freedesktop/portal/desktop";
constexpr const char* kSettings = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr int kLongEnoughForPortals = 10'000;

/// A desktop's portal on the bus of the tests, on a connection of its own.
class FakePortal : public QDBusVirtualObject {
 public:
  explicit FakePortal(std::map<QString, unsigned> settings, bool answers = true)
      : settings_(std::move(settings)), answers_(answers) {
    EXPECT_TRUE(bus_.registerVirtualObject(kObject, this));
    EXPECT_TRUE(bus_.registerService(kPortalName));
  }
  ~FakePortal() override {
    bus_.unregisterService(kPortalName);
    bus_.unregisterObject(kObject);
    QDBusConnection::disconnectFromBus("portal");
  }

  void Change(const QString& key, unsigned value) {
    settings_[key] = value;
    QDBusMessage signal = QDBusMessage::createSignal(kObject, kSettings, "SettingChanged");
    signal << QString(kGroup) << key << QVariant::fromValue(QDBusVariant(value));
    bus_.send(signal);
  }
  int Asked() const { return asked_; }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() != "Read" || message.interface() != kSettings) return false;
    ++asked_;
    if (!answers_) return true;
    const auto setting = settings_.find(message.arguments().value(1).toString());
    if (setting == settings_.end()) {
      bus.send(
          message.createErrorReply("org.freedesktop.portal.Error.NotFound", "no such setting"));
    } else {
      const QVariant inner = QVariant::fromValue(QDBusVariant(setting->second));
      bus.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }
    return true;
  }

 private:
  std::map<QString, unsigned> settings_;
  bool answers_;
  int asked_ = 0;
  QDBusConnection bus_ =
      QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "portal");
};

class ColoursOfTheDesktop : public testing::Test {
 protected:
  ColoursOfTheDesktop() { ApplyTheme(*qApp, ColourScheme::kLight); }
  ~ColoursOfTheDesktop() override { QApplication::setPalette(before_); }

  void Follow() {
    theme_.StartedWith(WishedScheme(preferences_));
    theme_.FollowDesktop();
  }
  static bool IsDark() { return Theme(QApplication::palette()).Dark(); }
  static bool Becomes(bool dark) {
    return QTest::qWaitFor([dark] { return IsDark() == dark; }, kLongEnoughForPortals);
  }
  /// After the portal has answered all that it was asked, and what it has sent
  /// has come.
  static void Settle() { QTest::qWait(300); }

  QPalette before_ = QApplication::palette();
  MemorySettingsStore settings_;
  Preferences preferences_{settings_};
  ProgramTheme theme_{preferences_};
};

TEST_F(ColoursOfTheDesktop, AreThoseOfThePortalAtTheStart) {
  const FakePortal portal({{"color-scheme", 1}});
  Follow();
  EXPECT_TRUE(Becomes(true));
}

TEST_F(ColoursOfTheDesktop, FollowThePortalWhileTheProgramRuns) {
  FakePortal portal({{"color-scheme", 2}});
  Follow();
  Settle();
  portal.Change("color-scheme", 1);
  EXPECT_TRUE(Becomes(true));
  portal.Change("color-scheme", 2);
  EXPECT_TRUE(Becomes(false));
}

TEST_F(ColoursOfTheDesktop, FollowAPortalThatComesLater) {
  Follow();
  Settle();
  FakePortal portal({});
  portal.Change("color-scheme", 1);
  EXPECT_TRUE(Becomes(true));
}

TEST_F(ColoursOfTheDesktop, AreNotAskedForByAUserWhoWantsLightOrDark) {
  preferences_.Set(Wish::kTheme, static_cast<int>(ColourScheme::kLight));
  FakePortal portal({{"color-scheme", 1}});
  Follow();
  Settle();
  EXPECT_FALSE(IsDark());
  preferences_.Set(Wish::kTheme, static_cast<int>(ColourScheme::kDesktop));
  EXPECT_TRUE(IsDark());
  preferences_.Set(Wish::kTheme, static_cast<int>(ColourScheme::kDark));
  portal.Change("color-scheme", 2);
  Settle();
  EXPECT_TRUE(IsDark());
}

TEST_F(ColoursOfTheDesktop, StayWhereItWishesForHighContrast) {
  FakePortal portal({{"color-scheme", 1}, {"contrast", 0}});
  Follow();
  ASSERT_TRUE(Becomes(true));
  portal.Change("contrast", 1);
  EXPECT_TRUE(
      QTest::qWaitFor([] { return QApplication::palette() != PaletteOf(Brightness::kDark); },
                      kLongEnoughForPortals));
  EXPECT_NE(QApplication::palette(), PaletteOf(Brightness::kLight));
}

TEST_F(ColoursOfTheDesktop, OfOtherGroupsAndOfOtherKindsAreNothing) {
  FakePortal portal({{"color-scheme", 2}});
  Follow();
  Settle();
  portal.Change("accent-color", 1);
  Settle();
  EXPECT_FALSE(IsDark());
}

TEST_F(ColoursOfTheDesktop, AreWaitedForByNobody) {
  const FakePortal silent({}, false);
  QElapsedTimer clock;
  clock.start();
  Follow();
  EXPECT_LT(clock.elapsed(), 1000);
  ASSERT_TRUE(QTest::qWaitFor([&] { return silent.Asked() == 2; }, kLongEnoughForPortals));
  EXPECT_FALSE(IsDark());
}

}  // namespace
}  // namespace tessel::test
