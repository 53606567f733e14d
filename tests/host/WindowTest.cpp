// The window itself: its menu, files dropped on it, how it looked last time, and what it says when
// that which is kept cannot be used.
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTreeWidget>
#include <QWindow>
#include <set>

#include "HostFixture.h"
#include "host/BackupsDialog.h"
#include "host/HostAutomation.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "host/help/AboutDialog.h"
#include "qt/editor/ScintillaView.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {
namespace {

class Window : public HostTest {
 protected:
  std::string Said() { return Run().window->statusBar()->currentMessage().toStdString(); }
  bool Says(const std::string& part) {
    return QTest::qWaitFor([&] { return Said().find(part) != std::string::npos; }, 5000);
  }
  RecoveryKeeper& Keeper() { return *Run().window->findChild<RecoveryKeeper*>(); }
  std::string TheRunsFolder() const {
    for (const auto& entry : std::filesystem::directory_iterator(State() + "/recovery")) {
      return entry.path();
    }
    return {};
  }
  QWidget* View() { return Run().window->Control().CurrentEditorView(); }
  /// Whether the widget took the drag of these.
  static bool Drag(QWidget* widget, const QMimeData& data) {
    QDragEnterEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.setAccepted(false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  static void Drop(QWidget* widget, const QMimeData& data) {
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    QCoreApplication::processEvents();
  }
  void SaveInPlaceWith(const std::string& text) {
    Run().Editor(0).Type(text);
    Run().SaveInPlace();
  }

  std::string user_ = directory_.Put("user.con", "define A 1\r\n");
  std::string game_ = directory_.Put("game \u00e9.con", "define G 1\r\n");
};

// --- The menu

TEST_F(Window, OpensWhatIsChosenInTheMenusDialog) {
  Run().fakes.fileDialogs.answers = {{{user_}}};
  Run().MenuItem("&Open...")->trigger();
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
}

TEST_F(Window, TellsWhatItIs) {
  Run().MenuItem("&About Zanth Manager")->trigger();
  const auto* about = Run().window->findChild<AboutDialog*>();
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(about->isVisible());
  QStringList texts;
  bool picture = false;
  for (const auto* label : about->findChildren<QLabel*>()) {
    texts += label->text();
    picture = picture || !label->pixmap(Qt::ReturnByValue).isNull();
  }
  const std::string text = texts.join('\n').toStdString();
  for (const char* part :
       {"Zanth Manager ", "An editor for CON files.", "GNU General Public License", "Qt ",
        "QScintilla", "SQLite", "icons", "fonts"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
  EXPECT_TRUE(picture);
}

TEST_F(Window, TellsItsFoldersAndCopiesTheirPaths) {
  Run().window->KeepsSettingsIn(QString::fromStdString(directory_ / "config/settings.db"));
  Run().MenuItem("&About Zanth Manager")->trigger();
  const auto* about = Run().window->findChild<AboutDialog*>();
  std::vector<std::string> copied;
  for (auto* button : about->findChildren<QPushButton*>()) {
    if (button->text() != "Copy") continue;
    button->click();
    copied.push_back(QGuiApplication::clipboard()->text().toStdString());
  }
  EXPECT_EQ(copied, (std::vector<std::string>{directory_ / "config", State() + "/backups",
                                              State() + "/recovery"}));
}

TEST_F(Window, QuitsFromTheMenu) {
  EXPECT_EQ(Run().MenuItem("&Quit")->shortcut(), QKeySequence("Ctrl+Q"));
  Run().MenuItem("&Quit")->trigger();
  EXPECT_FALSE(Run().window->isVisible());
}

TEST_F(Window, RemembersThatOtherProgramsMayUseIt) {
  const auto item = [&] { return Run().MenuItem("Allow Auto&mation by Other Programs"); };
  EXPECT_FALSE(item()->isChecked());
  QSignalSpy wanted(Run().window.get(), &MainWindow::automationWanted);
  item()->trigger();
  EXPECT_EQ(wanted.takeFirst().at(0).toBool(), true);
  Restart();
  EXPECT_TRUE(Run().window->Wishes().Wants(Wish::kAutomation));
  EXPECT_TRUE(item()->isChecked());
  item()->trigger();
  EXPECT_FALSE(Run().window->Wishes().Wants(Wish::kAutomation));
}

// --- Save writes into the document's own file, and its tab keeps its name

// The toolkit has a mark of its own in titles, "[*]", which it takes away.
TEST_F(Window, ShowsTheNameOfItsFileInTheTitleAsItIs) {
  for (const std::string name : {"q[*].con", "[*][*].con", "q.con[*]", "[*"}) {
    Run().window->OpenFiles({directory_.Put(name, "")});
    const auto shown = [this] { return Run().window->windowHandle()->title().toStdString(); };
    EXPECT_EQ(shown(), name + " \u2014 Zanth Manager");
    Run().Editor(Run().Tabs().Count() - 1).Type("x");
    EXPECT_EQ(shown(), name + "* \u2014 Zanth Manager");
  }
}

TEST_F(Window, SavesAFileOfTheCommandLineUnderItsOwnName) {
  Run().window->OpenFiles({user_});
  SaveInPlaceWith("one ");
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Tabs().At(1).caption, "user.con");
  SaveInPlaceWith("two ");
  EXPECT_EQ(BytesOf(user_), "one two define A 1\r\n");
}

TEST_F(Window, OpensNothingIntoADocumentThatWasSaved) {
  Run().window->OpenFiles({user_});
  SaveInPlaceWith("one ");
  Run().Editor(0).Type("two ");
  Run().fakes.fileDialogs.answers = {{{game_}}};
  Run().MenuItem("&Open...")->trigger();
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Editor(0).Text(), "one two define A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
}

TEST_F(Window, SavesEachOfSeveralFilesOfOneDialogIntoItself) {
  Run().fakes.fileDialogs.answers = {{{user_, game_}}};
  Run().MenuItem("&Open...")->trigger();
  Run().Tabs().Select(1);
  SaveInPlaceWith("one ");
  SaveInPlaceWith("two ");
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(BytesOf(user_), "one two define A 1\r\n");
  EXPECT_EQ(BytesOf(game_), "define G 1\r\n");
}

TEST_F(Window, KeepsTheDocumentsNameAlsoAfterAMapWasChosen) {
  Run().window->OpenFiles({user_});
  Run().fakes.fileDialogs.answers = {{{directory_.Put("E1L1.map", "")}}};
  Run().Controls().cmdMap.Press();
  SaveInPlaceWith("one ");
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
}

TEST_F(Window, GivesADocumentTheNameUnderWhichItWasSaved) {
  const std::string other = directory_ / "other.con";
  Run().window->OpenFiles({user_, game_});
  Run().fakes.fileDialogs.answers = {{{other}}};
  Run().Controls().tbToolBar.Press("FileSave");
  EXPECT_EQ(Run().Tabs().At(2).tag, other);
  EXPECT_EQ(Run().Tabs().At(2).caption, "other.con");
}

// --- Dropped files

TEST_F(Window, OpensFilesThatAreDroppedOnTheEditor) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(user_)),
                QUrl::fromLocalFile(QString::fromStdString(game_))});
  EXPECT_TRUE(Drag(View(), data));
  Drop(View(), data);
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Tabs().At(2).tag, game_);
}

TEST_F(Window, OpensFilesThatAreDroppedOnItself) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(user_))});
  EXPECT_TRUE(Drag(Run().window.get(), data));
  Drop(Run().window.get(), data);
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
}

TEST_F(Window, TakesNoDragOfAnythingElse) {
  QMimeData text;
  text.setText("text");
  EXPECT_FALSE(Drag(Run().window.get(), text));
  QMimeData remote;
  remote.setUrls({QUrl("https://example.org/user.con")});
  EXPECT_FALSE(Drag(Run().window.get(), remote));
  QMimeData both;
  both.setUrls({QUrl::fromLocalFile(QString::fromStdString(user_)), QUrl("https://example.org/")});
  EXPECT_FALSE(Drag(Run().window.get(), both));
  Drop(Run().window.get(), both);
  EXPECT_EQ(Run().Tabs().At(1).tag, "");
}

// --- How it looked

TEST_F(Window, GivesTheControlAllOfItsWidth) {
  const TesselWidget& control = Run().window->Control();
  EXPECT_EQ(control.mapTo(Run().window.get(), QPoint(0, 0)).x(), 0);
  EXPECT_EQ(control.width(), Run().window->width());
}

TEST_F(Window, TellsTheSystemThatItTakesWhatIsDropped) { EXPECT_TRUE(Run().window->acceptDrops()); }

TEST_F(Window, LooksAsItWasLeft) {
  const auto pressed = [&](const char* key) { return Run().Controls().tbToolBar.Pressed(key); };
  const bool tabs = pressed("ShowTabs");
  const bool colours = pressed("Colorize");
  Run().window->resize(777, 555);
  Run().Controls().tbToolBar.Press("ShowTabs");
  CloseAndStartAgain();
  EXPECT_EQ(pressed("ShowTabs"), tabs);
  Run().window->RestoreLook();
  EXPECT_EQ(Run().window->size(), QSize(777, 555));
  EXPECT_NE(pressed("ShowTabs"), tabs);
  EXPECT_EQ(pressed("Colorize"), colours);
}

// --- What is kept cannot be used

TEST_F(Window, SaysThatTheBackupsCannotBeRead) {
  directory_.Put("state/ZanthMan/backups", "no folder");
  Run().MenuItem("&Backups...")->trigger();
  EXPECT_EQ(Said(), "The backups cannot be read: Not a directory.");
  EXPECT_EQ(Run().window->findChild<BackupsDialog*>(), nullptr);
}

TEST_F(Window, SaysThatABackupCannotBeRead) {
  Run().window->OpenFiles({user_});
  SaveInPlaceWith("2 ");
  Run().MenuItem("&Backups...")->trigger();
  std::filesystem::remove_all(State() + "/backups");
  Run().Press<BackupsDialog>("&Open");
  EXPECT_EQ(Said(), "The backup cannot be read: No such file or directory.");
  EXPECT_EQ(Run().Editor(0).Text(), "2 define A 1\r\n");
}

TEST_F(Window, OpensTheFileOfABackupThatIsNotOpen) {
  Run().window->OpenFiles({user_});
  SaveInPlaceWith("2 ");
  CloseAndStartAgain();
  Run().MenuItem("&Backups...")->trigger();
  Run().Press<BackupsDialog>("&Open");
  EXPECT_EQ(Run().Tabs().At(1).tag, user_);
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
  EXPECT_EQ(BytesOf(user_), "2 define A 1\r\n");
}

TEST_F(Window, ShowsWhatIsLeftOfADamagedBackup) {
  Run().window->OpenFiles({user_});
  SaveInPlaceWith("2 ");
  const std::string backup =
      State() + "/backups/" + BackupStore(State() + "/backups").List().at(0).name;
  std::filesystem::resize_file(backup, std::filesystem::file_size(backup) - 4);
  Run().MenuItem("&Backups...")->trigger();
  const auto* list = Run().window->findChild<BackupsDialog*>()->findChild<QTreeWidget*>();
  EXPECT_EQ(list->topLevelItem(0)->text(0), "user.con (damaged)");
  Run().Press<BackupsDialog>("&Open");
  ASSERT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Tabs().At(2).tag, kUntitled);
  EXPECT_EQ(CurrentEditor(Run().Controls()).Text(), "define A");
  EXPECT_EQ(Run().Editor(0).Text(), "2 define A 1\r\n");
  EXPECT_EQ(Said(), "The backup is damaged. This is what is left of it.");
}

TEST_F(Window, OffersWhatIsLeftOfADamagedTextInADocumentOfItsOwn) {
  Run().window->OpenFiles({user_});
  Run().Editor(0).Type("// mine\r\n");
  ASSERT_TRUE(Keeper().KeepNow());
  const std::string text = TheRunsFolder() + "/text-1";
  std::filesystem::resize_file(text, std::filesystem::file_size(text) - 4);
  Restart();
  auto* offer = Run().window->findChild<RecoveryOffer*>();
  ASSERT_NE(offer, nullptr);
  EXPECT_TRUE(offer->findChild<QLabel*>()->text().contains("what is left of user.con"));
  Run().Press<RecoveryOffer>("&Recover");
  EXPECT_EQ(CurrentEditor(Run().Controls()).Text(), "// mine\r\ndefine A");
  EXPECT_EQ(Run().Tabs().At(1).tag, kUntitled);
  EXPECT_EQ(BytesOf(user_), "define A 1\r\n");
}

TEST_F(Window, SaysThatTextOfAnEarlierRunCannotBeRead) {
  std::filesystem::create_directories(State() + "/recovery/run-1-00000000/.lock");
  Restart();
  EXPECT_EQ(Said(), "Text that an earlier run kept in " + State() +
                        "/recovery cannot be read: Is a directory.");
}

TEST_F(Window, StartsWhereTheFolderOfUnsavedTextsIsNone) {
  run_.reset();
  std::filesystem::remove_all(State() + "/recovery");
  directory_.Put("state/ZanthMan/recovery", "somebody's own");
  Restart();
  EXPECT_TRUE(Run().window->isVisible());
  EXPECT_TRUE(Says("Unsaved text cannot be kept for recovery: Not a directory.")) << Said();
  EXPECT_EQ(BytesOf(State() + "/recovery"), "somebody's own");
}

TEST_F(Window, SaysThatUnsavedTextCannotBeKept) {
  const std::string folder = TheRunsFolder();
  Run().Editor(0).Type("first");
  ASSERT_TRUE(Keeper().KeepNow());
  std::filesystem::remove(folder + "/text-1");
  std::filesystem::create_directories(folder + "/text-1/occupied");
  Run().Editor(0).Type("second");
  EXPECT_FALSE(Keeper().KeepNow());
  EXPECT_TRUE(Says("Unsaved text cannot be kept for recovery: ")) << Said();
}

TEST_F(Window, KeepsAllTextsAgainWhenTheFolderVanishes) {
  Run().window->OpenFiles({user_, game_});
  Run().Tabs().Select(1);
  Run().Editor(0).Type("one ");
  Run().Tabs().Select(2);
  Run().Editor(1).Type("two ");
  ASSERT_TRUE(Keeper().KeepNow());
  std::filesystem::remove_all(State());
  Run().Editor(1).Type("three ");  // the first text does not change any more
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const std::string run =
            std::filesystem::exists(State() + "/recovery") ? TheRunsFolder() : "";
        return std::filesystem::exists(run + "/text-1") && std::filesystem::exists(run + "/text-2");
      },
      30'000));
}

TEST_F(Window, KeepsTheLastTextsThatWereDroppedAndNoMoreThanTwenty) {
  Run().window->OpenFiles({user_});
  for (int i = 0; i < 24; ++i) {
    Run().Editor(0).SelectByHand(Run().Editor(0).Length(), 0);
    Run().Editor(0).Type("dropped " + std::to_string(i) + " ");
    Run().window->Control().Tessel().ReloadDocument();
  }
  ASSERT_TRUE(Keeper().KeepNow());
  std::set<std::string> kept;
  const PrivateFolder run(TheRunsFolder());
  for (const std::string& name : run.Names()) kept.insert(ReadKeptText(run, name).bytes);
  for (int i = 5; i < 24; ++i) {
    EXPECT_TRUE(kept.contains("define A 1\r\ndropped " + std::to_string(i) + " ")) << i;
  }
  EXPECT_LE(kept.size(), 20U);
}

}  // namespace
}  // namespace tessel::test
