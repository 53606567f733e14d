// What the status bar says.
#include <QLabel>
#include <QStatusBar>

#include "HostFixture.h"
#include "host/status/DocumentStatus.h"

namespace tessel::test {
namespace {

QString Dialect(std::string_view text) { return DialectOf(language::Script(text)); }

TEST(Dialect, IsTheNewerOneWhereQsizeIsDefined) {
  EXPECT_EQ(Dialect("definelevelname 0 0 a.map 1:00 1:00 A\ndefine QSIZE 5\n"), "1.4/1.5");
  EXPECT_EQ(Dialect("// define QSIZE 5\ndefinelevelname 0 0 a.map 1:00 1:00 A\n"), "1.3D");
}

TEST(Dialect, IsNotKnownWhereNeitherIsDefined) {
  EXPECT_EQ(Dialect(""), "");
  EXPECT_EQ(Dialect("define A 1\n"), "");
  EXPECT_EQ(Dialect("// definelevelname 0 0 a.map 1:00 1:00 A\n"), "");
}

TEST(LineEndsShown, AreTheOnlyKindOrMixed) {
  EXPECT_EQ(LineEndsShown("a\r\nb\r\n"), "CR LF");
  EXPECT_EQ(LineEndsShown("a\nb"), "LF");
  EXPECT_EQ(LineEndsShown("a\rb"), "CR");
  EXPECT_EQ(LineEndsShown("a\r\nb\n"), "Mixed");
  EXPECT_EQ(LineEndsShown("a"), "");
}

class Status : public HostTest {
 protected:
  QStringList Shown() {
    QStringList texts;
    for (const auto* label : Run().window->statusBar()->findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) texts += label->text();
    }
    return texts;
  }
  bool Shows(const QStringList& texts) {
    return QTest::qWaitFor([&] { return Shown() == texts; }, kPatience);
  }
};

TEST_F(Status, SaysWhatTheDocumentInFrontIs) {
  EXPECT_TRUE(Shows({"Ln 1, Col 1", "Windows-1252"})) << Shown().join("|").toStdString();
  Run().window->OpenFiles({directory_.Put("user.con", "define QSIZE 1\nsecond\n")});
  EXPECT_TRUE(Shows({"Ln 1, Col 1", "Windows-1252", "LF", "1.4/1.5"}))
      << Shown().join("|").toStdString();
  Run().Editor(0).SelectByHand(15, 3);
  EXPECT_TRUE(Shows({"3 selected", "Ln 2, Col 4", "Windows-1252", "LF", "1.4/1.5"}))
      << Shown().join("|").toStdString();
  Run().Editor(0).Type("\r\n");
  EXPECT_TRUE(Shows({"Modified", "Ln 3, Col 1", "Windows-1252", "Mixed", "1.4/1.5"}))
      << Shown().join("|").toStdString();
}

TEST_F(Status, IsReadByAssistiveTechnologyAsItIsShown) {
  for (const auto* label : Run().window->statusBar()->findChildren<QLabel*>()) {
    EXPECT_EQ(label->accessibleName(), "") << "would be read in the place of the text";
  }
}

}  // namespace
}  // namespace tessel::test
