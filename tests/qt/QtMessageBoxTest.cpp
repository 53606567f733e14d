// What the Return key means in a box.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
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

int WidthOfBox(const std::string& title) {
  int width = 0;
  QTimer::singleShot(100, [&] {
    QWidget* box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    width = box->width();
    QTest::keyClick(box, Qt::Key_Return);
  });
  QtMessageBox().Show("?", MessageIcon::kExclamation, title, MessageButtons::kOk);
  return width;
}

TEST(QtMessageBox, IsNeverNarrowerThanItsTitleAndTheButtonsBesideIt) {
  EXPECT_GE(WidthOfBox("Zanth Manager"), 320);
  const std::string title(40, 'W');
  const int letters =
      QFontMetrics(QApplication::font()).horizontalAdvance(QString::fromStdString(title));
  EXPECT_GE(WidthOfBox(title), letters + 100);
}

}  // namespace
}  // namespace tessel
