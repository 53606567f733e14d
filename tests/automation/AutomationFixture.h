// Controls on a bus, and another program that uses them.
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QTest>
#include <memory>
#include <string>

#include "automation/Automation.h"
#include "qt/TesselWidget.h"
#include "support/FakeServices.h"

namespace tessel::test {

inline constexpr int kLongEnough = 30000;

/// One control, as its host has it.
struct OfferedControl {
  HostedControls& Controls() { return widget->Tessel().Controls(); }
  std::string Text() { return Controls().rtbCon[0].Text(); }
  void Open(const std::string& text) {
    services.files.Write("/con/user.con", text);
    widget->Tessel().OpenFile("/con/user.con");
  }

  FakeServices services;
  WidgetMap widgets;
  std::unique_ptr<TesselWidget> widget = std::make_unique<TesselWidget>(services.Get(), widgets);
};

class AutomationTest : public testing::Test {
 protected:
  ~AutomationTest() override { QDBusConnection::disconnectFromBus("another program"); }

  /// What the other program asks of the control at that path.
  QDBusPendingCall Call(const QString& path, const QString& method,
                        const QVariantList& arguments = {}) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(bus_.baseService(), path, "Tessel.ucTessel", method);
    message.setArguments(arguments);
    return other_.asyncCall(message);
  }
  /// Lets events pass until that is answered.
  static void Await(const QDBusPendingCall& call) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }, kLongEnough));
  }
  /// The name of the error with which that call ends; empty when it ends well.
  QString ErrorOf(const QString& path, const QString& method, const QVariantList& arguments = {}) {
    const QDBusPendingCall call = Call(path, method, arguments);
    Await(call);
    return call.error().name();
  }
  QString OwnerOf(const QString& name) {
    const QDBusPendingReply<QString> owner = other_.interface()->asyncCall("GetNameOwner", name);
    Await(owner);
    return owner.isError() ? QString() : owner.value();
  }

  QDBusConnection bus_ = QDBusConnection::sessionBus();
  QDBusConnection other_ =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, "another program");
  OfferedControl control_;
};

}  // namespace tessel::test
