// What the desktop says of colours.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

#include "qt/looks/Theme.h"

namespace tessel {

/// Asks the desktop's portal, and hears of changes while the program runs.
/// Nobody waits for the answer: until it is there, and where there is no
/// portal, nothing is wished.
class DesktopColours : public QObject {
  Q_OBJECT

 public:
  explicit DesktopColours(const QDBusConnection& bus, QObject* parent = nullptr);

  const DesktopWishes& Wishes() const { return wishes_; }

 signals:
  void changed();

 private:
  Q_SLOT void OnSettingChanged(const QDBusMessage& message);
  void Ask(const QString& key);
  void Take(const QString& key, const QVariant& value);

  QDBusConnection bus_;
  DesktopWishes wishes_;
};

}  // namespace tessel
