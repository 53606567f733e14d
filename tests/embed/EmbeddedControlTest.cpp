// The control as a program sees it that has nothing but the installed library.
#include <Tessel/TesselAutomation.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include "embed/Parts.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

constexpr const char* kOldUserFile = TESSEL_TEST_DATA_DIR "/zmuser.dat";

/// Presses a button of the next message box; says what the box asked.
class Answer {
 public:
  explicit Answer(QMessageBox::StandardButton button) {
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      timer_.stop();
      asked_ = box->text();
      box->button(button)->click();
    });
    timer_.start();
  }
  std::string Asked() const { return asked_.toStdString(); }

 private:
  QTimer timer_;
  QString asked_;
};

QAction* MenuItem(const QWidget& control, const QString& caption) {
  for (auto* menu : control.findChildren<QMenu*>()) {
    for (QAction* action : menu->actions()) {
      if (action->text() == caption) return action;
    }
  }
  return nullptr;
}

QAction* RecentFile(const QWidget& control, const QString& name) {
  for (auto* menu : control.findChildren<QMenu*>()) {
    for (QAction* action : menu->actions()) {
      if (action->text().endsWith(name)) return action;
    }
  }
  return nullptr;
}

class EmbeddedControlTest : public testing::Test {
 protected:
  TempDirectory folder_;
};

TEST_F(EmbeddedControlTest, StartsWithAFreeDocument) {
  const ucTessel control;
  EXPECT_EQ(control.DocumentPath(), "");
  EXPECT_EQ(control.DocumentName(), "");
  EXPECT_FALSE(control.DocumentModified());
  EXPECT_FALSE(control.Running());
}

TEST_F(EmbeddedControlTest, OpensAFileAndTellsItsColouring) {
  const std::string path = folder_.Put("User.con", "define HEALTH 100 // full\r\n");
  ucTessel control;
  const QSignalSpy status(&control, &ucTessel::SettingTextColor);
  const QSignalSpy documents(&control, &ucTessel::DocumentChanged);
  control.OpenFile(QString::fromStdString(path));
  EXPECT_EQ(control.DocumentPath().toStdString(), path);
  EXPECT_EQ(control.DocumentName(), "user.con");
  EXPECT_FALSE(control.DocumentModified());
  EXPECT_GE(documents.count(), 1);
  ASSERT_GE(status.count(), 1);
  EXPECT_FALSE(status.first().first().toString().isEmpty());
}

TEST_F(EmbeddedControlTest, DoesNothingElseWhileACommandIsOnItsWay) {
  const std::string path = folder_.Put("User.con", BytesOf(kOldUserFile));
  const std::string other = folder_.Put("other.con", "define B 1");
  ucTessel control;
  int calls = 0;
  QObject::connect(&control, &ucTessel::SettingTextColor, &control, [&] {
    ++calls;
    EXPECT_TRUE(control.Running());
    control.OpenFile(QString::fromStdString(other));
    control.ReloadDocument();
    control.Convert();
    EXPECT_FALSE(control.CloseAll());
  });
  control.OpenFile(QString::fromStdString(path));
  EXPECT_GE(calls, 1);
  EXPECT_FALSE(control.Running());
  EXPECT_EQ(control.DocumentPath().toStdString(), path);
  EXPECT_FALSE(control.DocumentModified());
}

TEST_F(EmbeddedControlTest, KeepsWholePathsOfRelativeOnes) {
  const std::string path = folder_.Put("maps/User.con", "// mine\r\n");
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(QString::fromStdString(folder_ / "maps")));
  ucTessel control;
  control.OpenFile("User.con");
  QDir::setCurrent(before);
  EXPECT_EQ(control.DocumentPath().toStdString(), path);
}

TEST_F(EmbeddedControlTest, SaysWhichFileIsMissingAndGoesOn) {
  ucTessel control;
  const Answer ok(QMessageBox::Ok);
  control.OpenFile(QString::fromStdString(folder_ / "none.con"));
  EXPECT_EQ(ok.Asked(), "File " + folder_ / "none.con" + " not found.");
  EXPECT_EQ(control.DocumentPath(), "");
}

TEST_F(EmbeddedControlTest, BothVersionsComeBackAsTheyWere) {
  ucTessel control;
  QString version = "Zanth15";
  QString byDefault = QString::fromUtf8("Zanth13 \xE2\x82\xAC");
  control.SetTesselVersion(version, byDefault);
  EXPECT_EQ(version, "Zanth15");
  EXPECT_EQ(byDefault, QString::fromUtf8("Zanth13 \xE2\x82\xAC"));
  control.SetTesselVersion(version);
  EXPECT_EQ(version, "Zanth15");
}

TEST_F(EmbeddedControlTest, TheMethodsAndTheEventAreKnownByName) {
  ucTessel control;
  QString version = "a";
  QString byDefault = "b";
  EXPECT_TRUE(QMetaObject::invokeMethod(&control, "SetTesselVersion", Q_ARG(QString&, version),
                                        Q_ARG(QString&, byDefault)));
  EXPECT_TRUE(QMetaObject::invokeMethod(&control, "SetTesselVersion", Q_ARG(QString&, version)));
  EXPECT_EQ(version + byDefault, "ab");
  EXPECT_GE(control.metaObject()->indexOfSlot("Convert()"), 0);
  EXPECT_GE(control.metaObject()->indexOfSignal("SettingTextColor(QString)"), 0);
}

TEST_F(EmbeddedControlTest, ConvertsTheCurrentDocument) {
  const std::string path = folder_.Put("User.con", BytesOf(kOldUserFile));
  ucTessel control;
  control.OpenFile(QString::fromStdString(path));
  control.Convert();
  EXPECT_TRUE(control.DocumentModified());
  EXPECT_NE(TextInSight(control), BytesOf(kOldUserFile));
  EXPECT_EQ(BytesOf(path), BytesOf(kOldUserFile)) << "converting saves nothing";
}

TEST_F(EmbeddedControlTest, AClosingHostAsksForModifiedDocuments) {
  const std::string path = folder_.Put("User.con", "old");
  ucTessel control;
  control.OpenFile(QString::fromStdString(path));
  TypeIntoEditor(control, "new ");
  ASSERT_TRUE(control.DocumentModified());
  {
    const Answer cancel(QMessageBox::Cancel);
    EXPECT_FALSE(control.CloseAll());
    EXPECT_NE(cancel.Asked(), "");
  }
  EXPECT_EQ(control.DocumentPath().toStdString(), path);
  EXPECT_EQ(TextInSight(control), "new old");
  const Answer no(QMessageBox::No);
  EXPECT_TRUE(control.CloseAll());
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(control.DocumentPath(), "");
}

TEST_F(EmbeddedControlTest, TakesAFileAgainThatOthersChanged) {
  const std::string path = folder_.Put("User.con", "old");
  ucTessel control;
  control.OpenFile(QString::fromStdString(path));
  TypeIntoEditor(control, "x");
  folder_.Put("User.con", "from elsewhere");
  control.ReloadDocument();
  EXPECT_FALSE(control.DocumentModified());
  EXPECT_EQ(TextInSight(control), "from elsewhere");
}

TEST_F(EmbeddedControlTest, AnInPlaceSaveFollowsTheLastDialogUnlessItIsAskedNotTo) {
  const QString path = QString::fromStdString(folder_.Put("User.con", "text"));
  for (const bool keepsName : {false, true}) {
    ucTessel::Options options;
    options.forgetSettings = true;
    options.dialogHoldsDocument = keepsName;
    ucTessel control(options);
    control.OpenFile(path);
    TypeIntoEditor(control, "x");
    QAction* save = MenuItem(control, "&Save");
    ASSERT_NE(save, nullptr);
    save->trigger();
    // No dialog was shown yet: nothing is what it holds.
    EXPECT_EQ(control.DocumentPath(), keepsName ? path : QString());
  }
}

TEST_F(EmbeddedControlTest, TellsWhatAFileCannotHold) {
  ucTessel control;
  const QSignalSpy refused(&control, &ucTessel::TextRefused);
  TypeIntoEditor(control, "");
  QKeyEvent cyrillic(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0x44F)));
  QApplication::sendEvent(QApplication::focusWidget(), &cyrillic);
  EXPECT_EQ(refused.count(), 1);
}

TEST_F(EmbeddedControlTest, NewDocumentsComeFromTheTemplatesOfTheHost) {
  const TempDirectory templates;
  for (const char* name :
       {"zmuser.dat", "zmuserp.dat", "zmdefs.dat", "zmdefsp.dat", "zmgame.dat", "zmgamep.dat"}) {
    templates.Put(name, "my own template");
  }
  ucTessel::Options options;
  options.forgetSettings = true;
  options.templateDirectory = QString::fromStdString(templates.Path());
  ucTessel control(options);
  control.show();
  QAction* item = MenuItem(control, "User.con: 1.4/1.5 ");
  ASSERT_NE(item, nullptr);
  item->trigger();
  EXPECT_EQ(control.DocumentName(), "Untitled");
  EXPECT_EQ(control.DocumentPath(), "");
  EXPECT_EQ(TextInSight(control), "my own template");
}

TEST_F(EmbeddedControlTest, ControlsShareTheSettingsAlsoWhenTheirFileCannotBeUsed) {
  ucTessel::Options options;
  options.settingsFile = QString::fromStdString(folder_ / "folder");
  folder_.Put("folder/in-it", "");
  const Answer ok(QMessageBox::Ok);
  ucTessel first(options);
  const ucTessel second(options);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !ok.Asked().empty(); }));
  EXPECT_NE(ok.Asked().find("Settings are kept in memory"), std::string::npos) << ok.Asked();
  QCoreApplication::processEvents();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "it is told once";

  const std::string path = folder_.Put("User.con", "x");
  first.OpenFile(QString::fromStdString(path));
  const ucTessel third(options);
  EXPECT_NE(RecentFile(third, "USER.CON"), nullptr);
  EXPECT_EQ(RecentFile(second, "USER.CON"), nullptr) << "it has read them at its start";
}

TEST_F(EmbeddedControlTest, ADestroyedControlLeavesTheOtherAlone) {
  const std::string path = folder_.Put("User.con", "kept");
  ucTessel stays;
  {
    ucTessel goes;
    goes.OpenFile(QString::fromStdString(path));
  }
  stays.OpenFile(QString::fromStdString(path));
  EXPECT_EQ(TextInSight(stays), "kept");
}

TEST_F(EmbeddedControlTest, ControlsOfOneParentGoWithIt) {
  QWidget window;
  auto* first = new ucTessel(&window);
  auto* second = new ucTessel(&window);
  first->OpenFile(QString::fromStdString(folder_.Put("a.con", "a")));
  EXPECT_EQ(second->DocumentPath(), "");
  window.show();
  second->setFocus();
}

TEST_F(EmbeddedControlTest, WithoutABusTheHostIsToldWhyNobodyElseCanUseIt) {
  ucTessel control;
  const TesselAutomation automation(control);
  EXPECT_EQ(automation.Path(), "");
  EXPECT_EQ(automation.Problem(),
            "The control is not offered to other programs: there is no session bus.");
}

}  // namespace
}  // namespace tessel::test
