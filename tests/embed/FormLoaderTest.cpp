// The control by its class name: forms that are loaded at run time, and what Designer is told.
#include <gtest/gtest.h>

#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>
#include <QSignalSpy>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <memory>

#include "embed/Parts.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class FormLoaderTest : public testing::Test {
 protected:
  FormLoaderTest() {
    loader_.clearPluginPaths();
    loader_.addPluginPath(TESSEL_DESIGNER_PLUGINS);
  }

  std::unique_ptr<QWidget> Load() {
    QFile file(TESSEL_TEST_FORM);
    if (!file.open(QIODevice::ReadOnly)) return nullptr;
    return std::unique_ptr<QWidget>(loader_.load(&file));
  }

  QUiLoader loader_;
  TempDirectory folder_;
};

TEST_F(FormLoaderTest, TheClassIsThereByName) {
  EXPECT_TRUE(loader_.availableWidgets().contains("ucTessel"));
  const std::unique_ptr<QWidget> made(loader_.createWidget("ucTessel"));
  ASSERT_NE(made, nullptr);
  EXPECT_NE(qobject_cast<ucTessel*>(made.get()), nullptr);
}

TEST_F(FormLoaderTest, AFormGetsTheControlAndItsConnections) {
  const std::string path = folder_.Put("User.con", BytesOf(TESSEL_TEST_DATA_DIR "/zmuser.dat"));
  const auto form = Load();
  ASSERT_NE(form, nullptr) << loader_.errorString().toStdString();
  auto* editor = form->findChild<ucTessel*>("editor");
  ASSERT_NE(editor, nullptr);

  editor->OpenFile(QString::fromStdString(path));
  EXPECT_NE(form->findChild<QLabel*>("status")->text(), "") << "the event reaches the form";
  EXPECT_FALSE(editor->DocumentModified());
  form->findChild<QPushButton*>("convert")->click();
  EXPECT_TRUE(editor->DocumentModified()) << "the form reaches the method";
}

TEST_F(FormLoaderTest, ALoadedControlTakesBothArgumentsByName) {
  const auto form = Load();
  ASSERT_NE(form, nullptr);
  auto* editor = form->findChild<QWidget*>("editor");
  QString version = "Zanth15";
  QString byDefault = "Zanth13";
  EXPECT_TRUE(QMetaObject::invokeMethod(editor, "SetTesselVersion", Q_ARG(QString&, version),
                                        Q_ARG(QString&, byDefault)));
  EXPECT_EQ(version, "Zanth15");
  EXPECT_EQ(byDefault, "Zanth13");
}

/// What the plugin says of the control.
class DesignerPluginTest : public testing::Test {
 protected:
  DesignerPluginTest() : loader_(TESSEL_DESIGNER_PLUGINS "/libtessel.so") {
    plugin_ = qobject_cast<QDesignerCustomWidgetInterface*>(loader_.instance());
  }

  QPluginLoader loader_;
  QDesignerCustomWidgetInterface* plugin_ = nullptr;
};

TEST_F(DesignerPluginTest, ShowsTheControlInTheWidgetBox) {
  ASSERT_NE(plugin_, nullptr) << loader_.errorString().toStdString();
  EXPECT_EQ(plugin_->name(), "ucTessel");
  EXPECT_EQ(plugin_->group(), "Input Widgets");
  EXPECT_EQ(plugin_->toolTip(), "Editor for CON files");
  EXPECT_NE(plugin_->whatsThis(), "");
  EXPECT_EQ(plugin_->includeFile(), "Tessel/ucTessel.h");
  EXPECT_FALSE(plugin_->icon().pixmap(32, 32).isNull());
  EXPECT_FALSE(plugin_->isContainer());
}

TEST_F(DesignerPluginTest, NamesOnlySignalsAndSlotsThatTheControlHas) {
  ASSERT_NE(plugin_, nullptr);
  QDomDocument description;
  ASSERT_TRUE(description.setContent(plugin_->domXml()));
  int members = 0;
  for (const char* kind : {"signal", "slot"}) {
    const QDomNodeList nodes = description.elementsByTagName(kind);
    for (int i = 0; i < nodes.count(); ++i, ++members) {
      const QByteArray member = nodes.at(i).toElement().text().toUtf8();
      const QMetaObject& meta = ucTessel::staticMetaObject;
      const bool known = qstrcmp(kind, "signal") == 0 ? meta.indexOfSignal(member) >= 0
                                                      : meta.indexOfSlot(member) >= 0;
      EXPECT_TRUE(known) << kind << " " << member.toStdString();
    }
  }
  EXPECT_EQ(members, 7);
}

TEST_F(DesignerPluginTest, AFormThatIsDesignedTouchesNoSettings) {
  ASSERT_NE(plugin_, nullptr);
  const TempDirectory folder;
  const QByteArray before = qgetenv("ZANTHMAN_STORE");
  qputenv("ZANTHMAN_STORE", (folder / "settings.db").c_str());
  plugin_->initialize(nullptr);
  EXPECT_TRUE(plugin_->isInitialized());
  const std::unique_ptr<QWidget> made(plugin_->createWidget(nullptr));
  qobject_cast<ucTessel*>(made.get())
      ->OpenFile(QString::fromStdString(folder.Put("User.con", "define A 1\r\n")));
  qputenv("ZANTHMAN_STORE", before);
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"User.con"});
}

}  // namespace
}  // namespace tessel::test
