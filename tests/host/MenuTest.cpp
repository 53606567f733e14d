// The menu bar, its keys, and the tabs' own menu.
#include <QInputDialog>
#include <QMenuBar>
#include <QTabBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <map>
#include <set>

#include "HostFixture.h"
#include "host/menu/TabMenu.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::test {
namespace {

class Menus : public HostTest {
 protected:
  void SetUp() override {
    QApplication::setActiveWindow(Run().window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(Run().window.get()));
  }
  ScintillaView& View() { return *Run().window->Control().CurrentEditorView(); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QTest::keyClick(focus, key, modifiers);
  }
  void Ctrl(Qt::Key key) { Key(key, Qt::ControlModifier); }
  QTabBar& Bar() {
    return *qobject_cast<QTabBar*>(Run().window->Control().WidgetFor(Run().Tabs()));
  }
  void OpenThree() {
    Run().window->OpenFiles({a_, b_, c_});
    Run().Tabs().Select(1);
  }
  std::string Front() { return Run().window->Control().Tessel().OpenDocuments().Current().Name(); }

  std::string a_ = directory_.Put("a.con", "define A 1\r\n");
  std::string b_ = directory_.Put("b.con", "define B 1\r\nsecond\r\nthird\r\n");
  std::string c_ = directory_.Put("c.con", "define C 1\r\n");
};

TEST_F(Menus, BeginWithTheFocusInTheText) { EXPECT_EQ(QApplication::focusWidget(), &View()); }

TEST_F(Menus, HaveNoKeyTwiceAndNoMnemonicTwice) {
  std::map<QString, QStringList> commands;
  for (const QAction* action : Run().window->findChildren<QAction*>()) {
    for (const QKeySequence& keys : action->shortcuts())
      commands[keys.toString()] += action->text();
  }
  EXPECT_GT(commands.size(), 25U);
  for (const auto& [keys, texts] : commands) {
    EXPECT_EQ(texts.size(), 1) << keys.toStdString() << ": " << texts.join(", ").toStdString();
  }
  for (const QAction* title : Run().window->menuBar()->actions()) {
    std::set<QChar> seen;
    for (const QAction* action : title->menu()->actions()) {
      if (action->isSeparator()) continue;
      const qsizetype at = action->text().indexOf('&');
      ASSERT_GE(at, 0) << action->text().toStdString();
      EXPECT_TRUE(seen.insert(action->text()[at + 1].toLower()).second)
          << action->text().toStdString();
    }
  }
}

TEST_F(Menus, SaveByKeyIntoTheDocumentsOwnFile) {
  OpenThree();
  QTest::keyClicks(&View(), "x ");
  Ctrl(Qt::Key_S);
  EXPECT_EQ(BytesOf(a_), "x define A 1\r\n");
  EXPECT_EQ(Run().Tabs().At(1).image, kBlackDot);
}

TEST_F(Menus, WorkWhereverTheFocusIs) {
  OpenThree();
  QTest::keyClicks(&View(), "x ");
  Run().window->Control().WidgetFor(Run().Controls().lstPlayers)->setFocus();
  Ctrl(Qt::Key_Z);
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
  Run().fakes.messages.answers = {MessageAnswer::kNo};
  Ctrl(Qt::Key_W);
  EXPECT_EQ(Run().Tabs().Count(), 2);
}

TEST_F(Menus, GoFromDocumentToDocument) {
  OpenThree();
  Ctrl(Qt::Key_PageDown);
  EXPECT_EQ(Front(), "b.con");
  Ctrl(Qt::Key_PageUp);
  Ctrl(Qt::Key_PageUp);
  EXPECT_EQ(Front(), "c.con");
  Key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Front(), "b.con");
  Key(Qt::Key_9, Qt::AltModifier);
  EXPECT_EQ(Front(), "b.con");
}

TEST_F(Menus, GoToTheDocumentThatWasUsedLast) {
  OpenThree();
  Run().Tabs().Select(3);
  Ctrl(Qt::Key_Tab);
  EXPECT_EQ(Front(), "a.con");
  Ctrl(Qt::Key_Tab);
  EXPECT_EQ(Front(), "c.con");
}

TEST_F(Menus, GoOnToOlderDocumentsWhileCtrlIsHeld) {
  OpenThree();
  Run().Tabs().Select(3);
  for (int i = 0; i < 2; ++i) {
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(Front(), "b.con");
  QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
  Ctrl(Qt::Key_Tab);
  EXPECT_EQ(Front(), "c.con");
}

TEST_F(Menus, GoToALine) {
  Run().window->OpenFiles({b_});
  Ctrl(Qt::Key_G);
  auto* dialog = Run().window->findChild<QInputDialog*>();
  ASSERT_NE(dialog, nullptr);
  dialog->setIntValue(2);
  dialog->accept();
  EXPECT_EQ(Run().Editor(0).SelStart(), 12);
  EXPECT_EQ(QApplication::focusWidget(), &View());
}

TEST_F(Menus, CommentLinesAndTakeItBack) {
  Run().window->OpenFiles({b_});
  Run().Editor(0).SelectByHand(3, 12);
  Ctrl(Qt::Key_Slash);
  EXPECT_EQ(Run().Editor(0).Text(), "// define B 1\r\n// second\r\nthird\r\n");
  Ctrl(Qt::Key_Slash);
  EXPECT_EQ(Run().Editor(0).Text(), "define B 1\r\nsecond\r\nthird\r\n");
  Ctrl(Qt::Key_Z);
  EXPECT_EQ(Run().Editor(0).Text(), "// define B 1\r\n// second\r\nthird\r\n");
}

TEST_F(Menus, ZoomAndTypeNothing) {
  OpenThree();
  const auto zoom = [&] { return View().SendScintilla(QsciScintillaBase::SCI_GETZOOM); };
  Ctrl(Qt::Key_Plus);
  Ctrl(Qt::Key_Plus);
  EXPECT_EQ(zoom(), 2);
  Run().Tabs().Select(2);
  EXPECT_EQ(zoom(), 2);
  Ctrl(Qt::Key_Minus);
  EXPECT_EQ(zoom(), 1);
  CloseAndStartAgain();
  EXPECT_EQ(zoom(), 1);
  Run().MenuItem("&Normal Size")->trigger();
  EXPECT_EQ(zoom(), 0);
  EXPECT_EQ(BytesOf(a_), "define A 1\r\n");
  EXPECT_EQ(Run().Editor(0).Text(), "");
}

TEST_F(Menus, OfferTemplatesAndRecentFilesByTheirWholePaths) {
  Run().window->OpenFiles({a_, b_});
  QMenu* recent = Run().MenuItem("Open &Recent")->menu();
  emit recent->aboutToShow();
  ASSERT_EQ(recent->actions().size(), 2);
  EXPECT_EQ(recent->actions().first()->text().toStdString(), b_);
  QMenu* list = Run().MenuItem("&New")->menu();
  emit list->aboutToShow();
  QStringList names;
  for (const QAction* action : list->actions()) {
    if (!action->isSeparator()) names += action->text();
  }
  EXPECT_EQ(names.size(), 6);
  EXPECT_EQ(names.first(), "User.con: 1.3D");
}

TEST_F(Menus, OpenTheListOfNewUnderItsButton) {
  Ctrl(Qt::Key_N);
  QMenu& list = *Run().MenuItem("&New")->menu();
  ASSERT_TRUE(list.isVisible());
  const auto* button = Run().window->findChild<QToolButton*>("FileNew");
  EXPECT_EQ(list.pos(), button->mapToGlobal(QPoint(0, button->height())));
  list.close();
}

TEST_F(Menus, OpenTheListOfNewUnderTheMenuWhereTheToolbarIsHidden) {
  Run().window->findChild<QToolBar*>()->hide();
  Ctrl(Qt::Key_N);
  QMenu& list = *Run().MenuItem("&New")->menu();
  ASSERT_TRUE(list.isVisible());
  const QMenuBar* bar = Run().window->menuBar();
  EXPECT_EQ(list.pos(), bar->mapToGlobal(bar->actionGeometry(bar->actions().first()).bottomLeft()));
  list.close();
}

TEST_F(Menus, KeepWhatTheToolbarsTwoStateButtonsSay) {
  QAction* panel = Run().MenuItem("&Settings Panel");
  EXPECT_TRUE(panel->isChecked());
  panel->trigger();
  EXPECT_FALSE(Run().Controls().tbToolBar.Pressed("ShowTabs"));
  EXPECT_FALSE(panel->isChecked());
  Run().Controls().tbToolBar.Press("ShowTabs");
  EXPECT_TRUE(panel->isChecked());
}

TEST_F(Menus, CloseATabByItsButtonAndByTheMiddleMouseButton) {
  OpenThree();
  emit Bar().tabCloseRequested(1);
  EXPECT_EQ(Run().Tabs().Count(), 2);
  EXPECT_EQ(Run().Tabs().At(2).caption, "c.con");
  QTest::mouseClick(&Bar(), Qt::MiddleButton, {}, Bar().tabRect(0).center());
  EXPECT_EQ(Run().Tabs().Count(), 1);
  EXPECT_EQ(Front(), "c.con");
}

TEST_F(Menus, AskBeforeAModifiedTabIsClosed) {
  OpenThree();
  Run().Tabs().Select(2);
  Run().Editor(1).Type("x");
  Run().fakes.messages.answers = {MessageAnswer::kCancel};
  emit Bar().tabCloseRequested(1);
  EXPECT_EQ(Run().Tabs().Count(), 3);
  EXPECT_EQ(Run().fakes.messages.shown.size(), 1U);
}

TEST_F(Menus, CloseAllOthersUpToTheFirstThatIsKept) {
  OpenThree();
  Run().Tabs().Select(2);
  Run().MenuItem("Close O&thers")->trigger();
  ASSERT_EQ(Run().Tabs().Count(), 1);
  EXPECT_EQ(Front(), "b.con");
  Run().window->OpenFiles({a_, c_});
  Run().Tabs().Select(2);
  Run().Editor(1).Type("x");
  Run().Tabs().Select(1);
  Run().fakes.messages.answers = {MessageAnswer::kCancel};
  Run().MenuItem("Close O&thers")->trigger();
  EXPECT_EQ(Run().Tabs().Count(), 2);
}

TEST_F(Menus, ShowTheManualAndTheKeys) {
  Run().MenuItem("&Manual")->trigger();
  const auto* manual = Run().window->findChild<QTextBrowser*>();
  ASSERT_NE(manual, nullptr);
  EXPECT_TRUE(manual->toPlainText().contains("Zanth Manager"));
  Run().MenuItem("&Keyboard Shortcuts")->trigger();
  const auto* keys = Run().window->findChild<QTreeWidget*>();
  ASSERT_NE(keys, nullptr);
  EXPECT_EQ(keys->findItems("Save", Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
}

}  // namespace
}  // namespace tessel::test
