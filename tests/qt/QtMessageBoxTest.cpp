// What the Return key means in a box.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "qt/services/QtMessageBox.h"

namespace tessel {
namespace {

MessageAnswer AnswerByKeys(MessageButtons buttons, const QString& keys) {
  QTimer::singleShot(100, [&] {
    QWidget* box = QApplication::activeModalWidget();
    ASSERT_NE(qobject_cast<QMessageBox*>(box), nullptr);
    QTest::keyClicks(box, keys);
    QTest::keyClick(box, Qt::Key_Return);
  });
  return QtMessageBox().Show("Replace it?", MessageIcon::kExclamation, kProgramTitle, buttons);
}

TEST(QtMessageBox, ReturnMeansNoWhereABoxComesUpWhileAPersonTypes) {
  EXPECT_EQ(AnswerByKeys(MessageButtons::kNoYes, "75"), MessageAnswer::kNo);
}

}  // namespace
}  // namespace tessel
