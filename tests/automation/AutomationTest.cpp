#include <gmock/gmock.h>

#include <QDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>
#include <QWidget>
#include <fstream>
#include <sstream>

#include "automation/Automation.h"
#include "automation/AutomationFixture.h"
#include "qt/services/QtModalForms.h"

namespace tessel::test {
namespace {

using testing::HasSubstr;

const QString kBusy = "Tessel.Error.Busy";
const QString kNoObject = "org.freedesktop.DBus.Error.UnknownObject";

std::string UserFile() {
  std::ifstream file(TESSEL_TEST_DATA_DIR "/zmuser.dat", std::ios::binary);
  return (std::ostringstream() << file.rdbuf()).str();
}

TEST_F(AutomationTest, GivesBothArgumentsOfTheVersionBack) {
  const Automation offer(*control_.widget, bus_);
  const QDBusPendingCall both = Call(offer.Path(), "SetTesselVersion", {"1.3D", "1.4/1.5 \u00e9"});
  Await(both);
  EXPECT_EQ(both.reply().arguments(), QVariantList({"1.3D", "1.4/1.5 \u00e9"}));
  const QDBusPendingCall one = Call(offer.Path(), "SetTesselVersion", {"1.3D"});
  Await(one);
  EXPECT_EQ(one.reply().arguments(), QVariantList({"1.3D"}));
}

TEST_F(AutomationTest, ConvertsAsTheHostDoes) {
  const Automation offer(*control_.widget, bus_);
  OfferedControl host;
  host.Open(UserFile());
  host.widget->Tessel().Convert();
  control_.Open(UserFile());
  EXPECT_EQ(ErrorOf(offer.Path(), "Convert"), "");
  EXPECT_NE(control_.Text(), UserFile());
  EXPECT_EQ(control_.Text(), host.Text());
  EXPECT_EQ(control_.Controls().tbsRtb.At(1).image, "RedDot");
  EXPECT_TRUE(control_.services.messages.shown.empty());
}

TEST_F(AutomationTest, ShowsTheUserWhatIsInTheWayAndNotTheCaller) {
  const Automation offer(*control_.widget, bus_);
  control_.Open("definelevelname 0 0 E1L1.map 01:45 00:53 NOTHING ELSE\r\n");
  const std::string before = control_.Text();
  EXPECT_EQ(ErrorOf(offer.Path(), "Convert"), "");
  EXPECT_EQ(control_.services.messages.shown.size(), 1U);
  EXPECT_EQ(control_.Text(), before);
}

TEST_F(AutomationTest, AnswersWhenTheMessageBoxHasBeenClosed) {
  const Automation offer(*control_.widget, bus_);
  std::optional<QDBusPendingCall> convert;
  bool answeredEarly = false;
  QString meanwhile;
  control_.services.messages.meanwhile = [&] {
    meanwhile = ErrorOf(offer.Path(), "Convert");
    answeredEarly = convert->isFinished();
  };
  convert = Call(offer.Path(), "Convert");  // there is no user file
  Await(*convert);
  EXPECT_EQ(meanwhile, kBusy);
  EXPECT_FALSE(answeredEarly);
  EXPECT_FALSE(convert->isError());
  EXPECT_EQ(control_.services.messages.shown.size(), 1U);
}

TEST_F(AutomationTest, RefusesEveryCallWhileACommandIsOnItsWay) {
  const Automation offer(*control_.widget, bus_);
  QString convert;
  QString version;
  const auto call = [&] {
    convert = ErrorOf(offer.Path(), "Convert");
    version = ErrorOf(offer.Path(), "SetTesselVersion", {"1.3D"});
  };
  control_.widget->Tessel().Run(call);
  EXPECT_EQ(convert, kBusy);
  EXPECT_EQ(version, kBusy);
  call();
  EXPECT_EQ(convert, "");
  EXPECT_EQ(version, "");
}

TEST_F(AutomationTest, RefusesCallsWhileADialogOfTheHostIsOpen) {
  const Automation offer(*control_.widget, bus_);
  QDialog dialog(control_.widget.get());
  dialog.open();
  const QDBusPendingCall call = Call(offer.Path(), "Convert");
  Await(call);
  EXPECT_EQ(call.error().name(), kBusy);
  EXPECT_EQ(call.error().message(), "A dialog is open. Call again when the user has closed it.");
  dialog.close();
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {"1.3D"}), "");
}

TEST_F(AutomationTest, RefusesCallsWhileAMenuIsOpen) {
  const Automation offer(*control_.widget, bus_);
  QMenu menu;
  menu.addAction("Convert con to Version 1.5");
  menu.popup(QPoint());
  const QDBusPendingCall call = Call(offer.Path(), "Convert");
  Await(call);
  EXPECT_EQ(call.error().name(), kBusy);
  EXPECT_EQ(call.error().message(), "A menu is open. Call again when the user has closed it.");
  menu.close();
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {"1.3D"}), "");
}

TEST_F(AutomationTest, RefusesCallsWhileAFormOfAnotherControlIsOpen) {
  const Automation offer(*control_.widget, bus_);
  FakeServices fakes;
  QtModalForms forms;
  const Services s = fakes.Get();
  WidgetMap widgets;
  TesselWidget neighbour({s.messages, s.fileDialogs, forms, s.clipboard, s.settings, s.pointer,
                          s.files, s.random, s.focus, s.loop, s.hostDirectory},
                         widgets);
  neighbour.show();
  QString refusal;
  QTimer::singleShot(0, &neighbour, [&] {
    refusal = ErrorOf(offer.Path(), "Convert");
    neighbour.Tessel().Forms()[0]->Hide();
  });
  neighbour.Tessel().Controls().tbToolBar.Press("Find");
  EXPECT_EQ(refusal, kBusy);
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {"1.3D"}), "");
}

TEST_F(AutomationTest, SendsTheStatusLineOfEachControlFromItsOwnObject) {
  OfferedControl neighbour;
  const Automation offer(*control_.widget, bus_);
  const Automation other(*neighbour.widget, bus_);
  // A window title is a place where a text can be sent to.
  const auto listen = [&](const QString& path, QObject& receiver) {
    return other_.connect(bus_.baseService(), path, "Tessel.ucTessel", "SettingTextColor",
                          &receiver, SLOT(setWindowTitle(QString)));
  };
  QWidget first;
  QWidget second;
  QSignalSpy fromFirst(&first, &QWidget::windowTitleChanged);
  QSignalSpy fromSecond(&second, &QWidget::windowTitleChanged);
  ASSERT_TRUE(listen(offer.Path(), first));
  ASSERT_TRUE(listen(other.Path(), second));
  control_.Open("define A 1\r\n");
  ASSERT_TRUE(QTest::qWaitFor([&] { return fromFirst.size() == 2; }, kLongEnough));
  EXPECT_EQ(fromFirst[0][0].toString(), "Colorizing, please wait...");
  EXPECT_EQ(fromFirst[1][0].toString(), "Zanth Manager Version 4.0");
  EXPECT_TRUE(fromSecond.isEmpty());
}

TEST_F(AutomationTest, RefusesWrongArgumentsAndUnknownMembers) {
  const Automation offer(*control_.widget, bus_);
  const QString unknown = "org.freedesktop.DBus.Error.UnknownMethod";
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion"), unknown);
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {15}), unknown);
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {"a", "b", "c"}), unknown);
  EXPECT_EQ(ErrorOf(offer.Path(), "Convert", {"a"}), unknown);
  EXPECT_EQ(ErrorOf(offer.Path(), "convert"), unknown);
  EXPECT_TRUE(control_.services.messages.shown.empty());
}

TEST_F(AutomationTest, IsGoneWithTheControl) {
  const Automation offer(*control_.widget, bus_);
  EXPECT_EQ(ErrorOf(offer.Path(), "SetTesselVersion", {"1.3D"}), "");
  const QDBusPendingCall late = Call(offer.Path(), "Convert");
  control_.widget.reset();
  Await(late);
  EXPECT_EQ(late.error().name(), kNoObject);
  EXPECT_EQ(ErrorOf(offer.Path(), "Convert"), kNoObject);
}

TEST_F(AutomationTest, CanBeTakenBackWhileACallWaitsForTheUser) {
  auto offer = std::make_unique<Automation>(*control_.widget, bus_);
  const QString path = offer->Path();
  QString meanwhile;
  control_.services.messages.meanwhile = [&] {
    offer.reset();
    meanwhile = ErrorOf(path, "Convert");
  };
  EXPECT_EQ(ErrorOf(path, "Convert"), "");
  EXPECT_EQ(meanwhile, kNoObject);
}

TEST_F(AutomationTest, NeverUsesANumberAgain) {
  const auto numberOf = [](const Automation& offer) {
    EXPECT_TRUE(offer.Path().startsWith("/Tessel/ucTessel/"));
    return offer.Path().section('/', -1).toInt();
  };
  auto first = std::make_unique<Automation>(*control_.widget, bus_);
  const int number = numberOf(*first);
  first.reset();
  const Automation second(*control_.widget, bus_);
  OfferedControl neighbour;
  const Automation third(*neighbour.widget, bus_);
  EXPECT_EQ(numberOf(second), number + 1);
  EXPECT_EQ(numberOf(third), number + 2);
}

TEST_F(AutomationTest, TellsThatItsPlaceIsTaken) {
  auto first = std::make_unique<Automation>(*control_.widget, bus_);
  EXPECT_EQ(first->Problem(), "");
  const int next = first->Path().section('/', -1).toInt() + 1;
  const QString path = "/Tessel/ucTessel/" + QString::number(next);
  QObject squatter;
  ASSERT_TRUE(bus_.registerObject(path, &squatter, QDBusConnection::ExportAllContents));
  const Automation refused(*control_.widget, bus_);
  EXPECT_THAT(refused.Problem().toStdString(), HasSubstr(path.toStdString() + " is taken already"));
  bus_.unregisterObject(path);
}

TEST_F(AutomationTest, TellsThatThereIsNoBus) {
  const Automation refused(*control_.widget,
                           QDBusConnection::connectToBus("unix:path=/nonexistent", "no such bus"));
  EXPECT_THAT(refused.Problem().toStdString(), HasSubstr("there is no bus"));
  QDBusConnection::disconnectFromBus("no such bus");
}

}  // namespace
}  // namespace tessel::test
