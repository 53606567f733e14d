// Which keys edit a text, and which do not.
#include <QTest>

#include "qt/ScintillaViewFixture.h"

namespace tessel {
namespace {

using EditorKeys = ScintillaViewFixture;

TEST_F(EditorKeys, TypeNothingWithCtrlAltOrMeta) {
  model.SetText("one\r\ntwo\r\n");
  for (const auto& [key, text] : {std::pair{Qt::Key_0, "0"},
                                  {Qt::Key_Plus, "+"},
                                  {Qt::Key_1, "1"},
                                  {Qt::Key_D, "d"},
                                  {Qt::Key_T, "t"},
                                  {Qt::Key_L, "l"},
                                  {Qt::Key_Slash, "/"},
                                  {Qt::Key_K, "k"},
                                  {Qt::Key_Space, " "}}) {
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier,
          Qt::KeyboardModifiers(Qt::MetaModifier), Qt::ControlModifier | Qt::KeypadModifier}) {
      QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
      QCoreApplication::sendEvent(&view, &event);
      EXPECT_EQ(model.Text(), "one\r\ntwo\r\n") << text << " " << int(modifiers);
    }
  }
}

TEST_F(EditorKeys, TypeWhatAltGrSaysThoughItComesAsCtrlAndAlt) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@");
  QCoreApplication::sendEvent(&view, &event);
  EXPECT_EQ(model.Text(), "@");
}

TEST_F(EditorKeys, DeleteWordsAndMoveByThem) {
  model.SetText("one two three");
  QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
  QTest::keyClick(&view, Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(model.Text(), "one three");
  QTest::keyClick(&view, Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(model.Text(), "three");
}

TEST_F(EditorKeys, PassOnWhatTheyDoNotUse) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_D, Qt::ControlModifier, "d");
  event.accept();
  QCoreApplication::sendEvent(&view, &event);
  EXPECT_FALSE(event.isAccepted());
}

}  // namespace
}  // namespace tessel
