// Mouse, menu keys, drag and drop, focus, and what a screen reader sees.
#include <QAccessible>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "qt/ScintillaViewFixture.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

struct ScintillaViewMouse : ScintillaViewFixture {
  std::vector<MouseButton> released;
  Subscription listening =
      model.MouseUp.Connect([this](MouseButton button) { released.push_back(button); });

  /// In the middle of the character at an ASCII position.
  QPoint PointOf(long position) const {
    const long x = view.SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, position);
    const long y = view.SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, position);
    return {static_cast<int>(x) + 2, static_cast<int>(y) + 5};
  }
  void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(type, QPointF(at), QPointF(view.viewport()->mapToGlobal(at)), button, held,
                      modifiers);
    QApplication::sendEvent(view.viewport(), &event);
  }
  void Click(QPoint at, Qt::MouseButton button) {
    Send(QEvent::MouseButtonPress, at, button, button);
    Send(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, modifiers);
    Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, modifiers);
    Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton, modifiers);
  }
  void Drop(QPoint at, QMimeData& data) {
    QDragEnterEvent entering(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                             Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &entering);
    QDropEvent event(QPointF(at), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &event);
  }
};

TEST_F(ScintillaViewMouse, AClickMovesTheModelsCaret) {
  model.SetText("one two\r\nthree");
  Click(PointOf(4), Qt::LeftButton);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(4, 0)));
  EXPECT_EQ(released, std::vector{MouseButton::kLeft});
}

TEST_F(ScintillaViewMouse, ADragSelects) {
  model.SetText("one two\r\nthree");
  Drag(PointOf(4), PointOf(11));
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(4, 7)));
}

TEST_F(ScintillaViewMouse, AltMakesNoRectangle) {
  model.SetText("one two\r\nthree four");
  Drag(PointOf(4), PointOf(11), Qt::AltModifier);
  EXPECT_EQ(view.SendScintilla(Sci::SCI_SELECTIONISRECTANGLE), 0);
  EXPECT_EQ(view.SendScintilla(Sci::SCI_GETSELECTIONS), 1);
  EXPECT_EQ(screen.Selection(), Selected());
}

TEST_F(ScintillaViewMouse, ARightClickInsideTheSelectionKeepsIt) {
  model.SetText("one two three");
  Select(4, 3);
  Click(PointOf(5), Qt::RightButton);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(4, 3)));
  EXPECT_EQ(released, std::vector{MouseButton::kRight});
}

TEST_F(ScintillaViewMouse, ARightClickOutsideTheSelectionMovesTheCaret) {
  model.SetText("one two three");
  Select(4, 3);
  Click(PointOf(9), Qt::RightButton);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(9, 0)));
  EXPECT_EQ(screen.Selection(), Selected());
  EXPECT_EQ(view.popupPosition(), view.viewport()->mapToGlobal(PointOf(9)));
}

TEST_F(ScintillaViewMouse, MenuKeysAskForTheMenuAtTheCaret) {
  model.SetText("one two\r\nthree");
  model.SetSelStart(10);
  Press(Qt::Key_Menu);
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(released, (std::vector{MouseButton::kRight, MouseButton::kRight}));
  const QPoint at = view.viewport()->mapFromGlobal(view.popupPosition());
  EXPECT_NEAR(at.x(), PointOf(10).x(), 4);
  EXPECT_GT(at.y(), PointOf(10).y());
}

TEST_F(ScintillaViewMouse, TheWheelZoomsWithCtrl) {
  const QPointF at(50, 50);
  QWheelEvent wheel(at, view.mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(view.viewport(), &wheel);
  EXPECT_EQ(view.SendScintilla(Sci::SCI_GETZOOM), 1);
}

TEST_F(ScintillaViewMouse, DroppedTextArrivesByteForByteAndSelected) {
  model.SetText("one two");
  const auto data = MimeOfBytes(AllBytes());
  Drop(PointOf(4), *data);
  EXPECT_EQ(model.Text(), "one " + AllBytes() + "two");
  EXPECT_EQ(Displayed(), model.Text());
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(4, 256)));
  model.Undo();
  EXPECT_EQ(Displayed(), "one two");
}

TEST_F(ScintillaViewMouse, DroppedTextOfOtherProgramsArrivesAsBytes) {
  model.SetText("one two");
  QMimeData data;
  data.setText(QStringLiteral("\u20AC\n\u201C"));
  Drop(PointOf(4), data);
  EXPECT_EQ(Displayed(), "one \x80\n\x93two");
}

TEST_F(ScintillaViewMouse, ForeignDroppedTextIsRefusedWhole) {
  model.SetText("one two");
  QMimeData data;
  data.setText(QStringLiteral("a\u0416"));
  Drop(PointOf(4), data);
  EXPECT_EQ(Displayed(), "one two");
  EXPECT_EQ(refusals.size(), 1);
}

TEST_F(ScintillaViewMouse, DraggedTextTakesItsBytesAlong) {
  struct Dragged : ScintillaView {
    using ScintillaView::ScintillaView;
    using ScintillaView::toMimeData;
  };
  Dragged source(model, clipboard);
  model.SetText(AllBytes());
  Select(0, 256);
  const std::unique_ptr<QMimeData> data(source.toMimeData("blanks for NULs", false));
  EXPECT_EQ(BytesOfMime(*data), AllBytes());
}

TEST(ScintillaViewFocus, CtrlTabLeavesAndTabDoesNot) {
  ControlSet controls;
  RichTextBox model(controls, "rtbCon");
  MemoryClipboard clipboard;
  QWidget window;
  QVBoxLayout layout(&window);
  ScintillaView view(model, clipboard);
  QWidget next;
  next.setFocusPolicy(Qt::StrongFocus);
  layout.addWidget(&view);
  layout.addWidget(&next);
  window.show();
  QApplication::setActiveWindow(&window);
  view.setFocus();
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, "\t");
  QApplication::sendEvent(&view, &tab);
  EXPECT_TRUE(view.hasFocus());
  EXPECT_EQ(model.Text(), "\t");
  QKeyEvent ctrlTab(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier, "\t");
  QApplication::sendEvent(&view, &ctrlTab);
  EXPECT_TRUE(next.hasFocus());
  EXPECT_EQ(model.Text(), "\t");
}

using ScintillaViewScreenReader = ScintillaViewFixture;

TEST_F(ScintillaViewScreenReader, FindsAnEditableTextWithAName) {
  QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&view);
  ASSERT_NE(seen, nullptr);
  EXPECT_EQ(seen->role(), QAccessible::EditableText);
  EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty());
}

TEST_F(ScintillaViewScreenReader, GetsTheTextOnceItIsActive) {
  model.SetText("one \x80");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->textInterface(), nullptr);
  QAccessible::setActive(true);
  auto* text = QAccessible::queryAccessibleInterface(&view)->textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, 5), QStringLiteral("one \u20AC"));
  screen.Type("x");
  EXPECT_EQ(model.Text(), "xone \x80");
  EXPECT_EQ(Displayed(), model.Text());
  QAccessible::setActive(false);
  screen.Type("y");
  EXPECT_EQ(Displayed(), "xyone \x80");
}

}  // namespace
}  // namespace tessel
