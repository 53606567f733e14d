// Names that look like markup are shown as they are.
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "qt/TesselWidgetFixture.h"
#include "qt/services/QtMessageBox.h"
#include "support/ShownTexts.h"

namespace tessel::test {
namespace {

// Their last letters are found however much of them is taken for markup.
constexpr const char* kNames[] = {
    "<b>bold-marker",         "<h1>BIG/<u>x-marker",      "<img src=/some/dir/pipe>-marker",
    "<!DOCTYPE x>y-marker",   "a & b &amp; c-marker",     "&lt;b&gt;-marker",
    "two  blanks <i>-marker", "line\n<b>break</b>-marker"};

class Markup : public TesselWidgetTest, public testing::WithParamInterface<const char*> {
 protected:
  const std::string name_ = GetParam();
};

TEST_P(Markup, IsShownAsItIsInEveryTooltipAndLabel) {
  Open(name_, "text");
  Controls().tbToolBar.Press("FileClose");  // it is a recent file then
  Open(name_, "text");
  const auto texts = ShownTextsWith("-marker");
  // The tab's and the recent file's.
  EXPECT_GE(texts.size(), 2U);
  for (const ShownText& shown : texts) {
    EXPECT_TRUE(shown.text.contains(QString::fromStdString(name_), Qt::CaseInsensitive))
        << shown.where << ": " << shown.text.toStdString();
  }
}

TEST_P(Markup, IsShownAsItIsInAMessageBox) {
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    text = box->text();
    format = box->textFormat();
    box->accept();
  });
  QtMessageBox().Show(name_, MessageIcon::kExclamation, name_, MessageButtons::kOk);
  EXPECT_EQ(text.toStdString(), name_);
  EXPECT_EQ(format, Qt::PlainText);
}

INSTANTIATE_TEST_SUITE_P(Names, Markup, testing::ValuesIn(kNames));

TEST(PlainToolTip, LeavesATextAsItIsThatNobodyTakesForMarkup) {
  for (const char* text : {"", "/con/user.con", "a & b", "two  blanks\nand a line", "1 < 2"}) {
    EXPECT_EQ(PlainToolTip(text), text);
  }
}

TEST(PlainToolTip, KeepsBlanksAndLineBreaksAndBreaksNoOtherLines) {
  const QString name = "/con/<b>two  blanks " + QString(300, 'x') + "/and more\nsecond line";
  QTextDocument document;
  document.setHtml(PlainToolTip(name));
  EXPECT_EQ(document.toPlainText(), name);
  const qreal height = document.size().height();
  document.setTextWidth(100);
  EXPECT_EQ(document.size().height(), height) << "a line is broken";
}

// The toolkit shows a refused text in a tooltip, too.
TEST_F(TesselWidgetTest, ARefusalShowsItsQuotesAsTheyAre) {
  Controls().tbsCon.Select(kFunctionsPage + 1);
  auto* box = WidgetFor<QLineEdit>(Controls().txtSearch);
  QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(QChar(0x0416)), Qt::NoModifier);
  const auto texts = ShownTextsWith("cannot be stored");
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_TRUE(texts[0].text.contains('"')) << texts[0].text.toStdString();
}

}  // namespace
}  // namespace tessel::test
