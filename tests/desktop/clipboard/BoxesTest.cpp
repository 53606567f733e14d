// Pasting into the boxes of the window on a real display, while the program that has the clipboard
// hangs.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QToolTip>

#include "ScriptedOwner.h"
#include "host/HostFixture.h"
#include "host/find/FindBar.h"
#include "host/find/FindField.h"
#include "qt/views/TextBoxView.h"

namespace tessel::test {
namespace {

constexpr qint64 kBlockedAtMost = 1000;
const QString kNoAnswer = "does not answer. Nothing was pasted.";

class BoxesUnderAHangingClipboard : public HostTest, public testing::WithParamInterface<Hangs> {
 protected:
  void SetUp() override {
    QApplication::setActiveWindow(Run().window.get());
    QCoreApplication::processEvents();
  }

  /// Does that to a box whose text is selected, and expects that it stays and why is said, within
  /// a second.
  template <class Action>
  void Blocked(QLineEdit& box, Action action) {
    box.setText("kept");
    box.selectAll();
    QToolTip::hideText();
    QElapsedTimer waited;
    waited.start();
    action();
    EXPECT_LE(waited.elapsed(), kBlockedAtMost);
    EXPECT_EQ(box.text(), "kept");
    EXPECT_EQ(box.selectedText(), "kept");
    EXPECT_TRUE(QToolTip::text().endsWith(kNoAnswer)) << QToolTip::text().toStdString();
  }

  QLineEdit& FindLine() {
    Run().window->findChild<FindBar*>()->show();
    return *Run().window->findChild<FindField*>()->lineEdit();
  }
};

TEST_P(BoxesUnderAHangingClipboard, KeepTheirTextAndSelection) {
  const ScriptedOwner owner("CLIPBOARD", GetParam(), std::string(2'000'000, 'x'));
  QLineEdit& find = FindLine();
  Blocked(find, [&] { QTest::keyClick(find.parentWidget(), Qt::Key_V, Qt::ControlModifier); });
  Blocked(find, [&] { QTest::keyClick(find.parentWidget(), Qt::Key_Insert, Qt::ShiftModifier); });

  ControlSet controls;
  TextBox model{controls, "txtValue"};
  TextBoxView value(model, Run().window.get());
  Blocked(value, [&] { QTest::keyClick(&value, Qt::Key_V, Qt::ControlModifier); });
  Blocked(value, [&] {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(1, 1),
                            value.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&value, &asked);
  });

  QSpinBox number(Run().window.get());
  number.setValue(7);
  QElapsedTimer waited;
  waited.start();
  QTest::keyClick(&number, Qt::Key_V, Qt::ControlModifier);
  EXPECT_LE(waited.elapsed(), kBlockedAtMost);
  EXPECT_EQ(number.value(), 7);

  QPlainTextEdit text("kept", Run().window.get());
  text.selectAll();
  waited.start();
  QTest::keyClick(&text, Qt::Key_V, Qt::ControlModifier);
  EXPECT_LE(waited.elapsed(), kBlockedAtMost);
  EXPECT_EQ(text.toPlainText(), "kept");
}

TEST_P(BoxesUnderAHangingClipboard, AndUnderAHangingSelection) {
  const ScriptedOwner owner("PRIMARY", GetParam(), std::string(2'000'000, 'x'));
  QLineEdit box(Run().window.get());
  box.setText("kept");
  QToolTip::hideText();
  QElapsedTimer waited;
  waited.start();
  QTest::mouseClick(&box, Qt::MiddleButton);
  EXPECT_LE(waited.elapsed(), kBlockedAtMost);
  EXPECT_EQ(box.text(), "kept");
  EXPECT_TRUE(QToolTip::text().endsWith(kNoAnswer)) << QToolTip::text().toStdString();
}

TEST_P(BoxesUnderAHangingClipboard, AlsoFromTheirOwnMenu) {
  QLineEdit box(Run().window.get());
  box.show();
  {
    const ScriptedOwner answering("CLIPBOARD", Hangs::kNever);
    const QPoint at(1, 1);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, at, box.mapToGlobal(at));
    QApplication::sendEvent(&box, &asked);
  }
  auto* menu = box.findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  const ScriptedOwner owner("CLIPBOARD", GetParam(), std::string(2'000'000, 'x'));
  int pasted = 0;
  for (QAction* action : menu->actions()) {
    if (!action->text().startsWith("&Paste")) continue;
    ++pasted;
    Blocked(box, [&] { action->trigger(); });
  }
  EXPECT_EQ(pasted, 1);
  menu->close();
}

INSTANTIATE_TEST_SUITE_P(Wherever, BoxesUnderAHangingClipboard,
                         testing::Values(Hangs::kAtOnce, Hangs::kAfterItsFormats, Hangs::kHalfWay,
                                         Hangs::kDrips));

TEST_F(HostTest, BoxesTakeWhatAProgramGivesThatAnswers) {
  const ScriptedOwner owner("CLIPBOARD", Hangs::kNever);
  ControlSet controls;
  TextBox model{controls, "txtValue"};
  TextBoxView value(model, Run().window.get());
  QTest::keyClick(&value, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(value.text(), "text of another");
}

}  // namespace
}  // namespace tessel::test
