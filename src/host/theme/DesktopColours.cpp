#include "host/theme/DesktopColours.h"

#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusVariant>

namespace tessel {
namespace {

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";
constexpr const char* kSettingsInterface = "org.freedesktop.portal.Settings";
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kContrast = "contrast";
constexpr int kPatienceMilliseconds = 5000;

/// The portal's numbers: 0 is no wish.
constexpr unsigned kPrefersDark = 1;
constexpr unsigned kPrefersLight = 2;
constexpr unsigned kHighContrast = 1;

/// What stands inside a variant, which may stand in another one.
QVariant Inside(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

std::optional<Brightness> BrightnessOf(unsigned scheme) {
  if (scheme == kPrefersDark) return Brightness::kDark;
  if (scheme == kPrefersLight) return Brightness::kLight;
  return std::nullopt;
}

}  // namespace

DesktopColours::DesktopColours(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), bus_(bus) {
  // Before the questions: a change in between is not missed. From any sender:
  // for one of a name the toolkit would wait until the bus says who that is.
  bus_.connect({}, kPortalPath, kSettingsInterface, "SettingChanged", this,
               SLOT(OnSettingChanged(QDBusMessage)));
  Ask(kColorScheme);
  Ask(kContrast);
}

void DesktopColours::Ask(const QString& key) {
  QDBusMessage question =
      QDBusMessage::createMethodCall(kPortal, kPortalPath, kSettingsInterface, "Read");
  question << QString(kAppearance) << key;
  auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question, kPatienceMilliseconds), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, key, answer] {
    const QDBusMessage reply = answer->reply();
    answer->deleteLater();
    if (reply.type() == QDBusMessage::ReplyMessage) Take(key, reply.arguments().value(0));
  });
}

void DesktopColours::OnSettingChanged(const QDBusMessage& message) {
  const QList<QVariant> arguments = message.arguments();
  if (arguments.value(0).toString() == kAppearance) {
    Take(arguments.value(1).toString(), arguments.value(2));
  }
}

void DesktopColours::Take(const QString& key, const QVariant& value) {
  bool isNumber = false;
  const unsigned number = Inside(value).toUInt(&isNumber);
  if (!isNumber) return;
  DesktopWishes now = wishes_;
  if (key == kColorScheme) now.brightness = BrightnessOf(number);
  if (key == kContrast) now.highContrast = number == kHighContrast;
  if (now == wishes_) return;
  wishes_ = now;
  emit changed();
}

}  // namespace tessel
