// Files whose lines are too long for keys.
#include <gtest/gtest.h>

#include <QLocale>
#include <fstream>

#include "host/HostFixture.h"
#include "host/ReadingNotice.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::test {
namespace {

class LongLineInAFile : public HostTest {
 protected:
  static void Write(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }
  std::string Made(const std::string& name, Position longest) {
    const std::string path = directory_ / name;
    Write(path, "define A 1\r\n" + std::string(static_cast<std::size_t>(longest), 'x'));
    return path;
  }
  std::string Open(const std::string& name, Position longest) {
    const std::string path = Made(name, longest);
    Run().window->OpenFiles({path});
    return path;
  }
  ReadingNotice& Notice() { return *Run().window->findChild<ReadingNotice*>(); }
  void TypeAKey() {
    ScintillaView* view = Run().window->Control().CurrentEditorView();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_A);
  }
  Position Length(int slot) { return Run().Editor(slot).Length(); }
};

constexpr Position kLimit = ReadingNotice::kLongestEdited;

TEST_F(LongLineInAFile, IsEditedUpToTheLimit) {
  Open("a.con", kLimit);
  EXPECT_FALSE(Notice().isVisible());
  const Position before = Length(0);
  TypeAKey();
  EXPECT_EQ(Length(0), before + 1);
}

TEST_F(LongLineInAFile, IsForReadingBeyondTheLimitAndABarSaysWhy) {
  Open("a.con", kLimit + 1);
  EXPECT_TRUE(Notice().isVisible());
  const QString sentence = Notice().findChild<QLabel*>()->text();
  EXPECT_TRUE(sentence.contains("a.con is open for reading")) << sentence.toStdString();
  EXPECT_TRUE(sentence.contains(QLocale().toString(qlonglong{kLimit + 1})));
  const Position before = Length(0);
  TypeAKey();
  EXPECT_EQ(Length(0), before);
  EXPECT_FALSE(Run().window->Control().Tessel().OpenDocuments().Current().Modified());
}

TEST_F(LongLineInAFile, LetsThePanelChangeTheText) {
  Open("a.con", kLimit + 1);
  Run().Editor(0).SetSelStart(9);
  Run().Editor(0).SetSelLength(1);
  Run().Editor(0).SetSelText("42");
  EXPECT_TRUE(Run().Editor(0).Text().starts_with("define A 42\r\n"));
}

TEST_F(LongLineInAFile, StaysWithItsDocument) {
  Open("short.con", 10);
  Open("long.con", kLimit + 1);
  EXPECT_TRUE(Notice().isVisible());
  Run().Tabs().Select(1);
  EXPECT_FALSE(Notice().isVisible());
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_TRUE(Notice().isVisible());
  const Position before = Length(0);
  TypeAKey();
  EXPECT_EQ(Length(0), before);
}

TEST_F(LongLineInAFile, LeavesNothingBehindWhenItsDocumentIsClosed) {
  Open("long.con", kLimit + 1);
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_FALSE(Notice().isVisible());
  TypeAKey();
  EXPECT_EQ(Run().Editor(0).Text(), "a");
}

TEST_F(LongLineInAFile, EndsWithAReloadOfAShorterOne) {
  const std::string path = Open("a.con", kLimit + 1);
  Write(path, "short");
  Run().window->Control().Tessel().ReloadDocument();
  EXPECT_FALSE(Notice().isVisible());
  TypeAKey();
  EXPECT_EQ(Run().Editor(0).Text(), "ashort");
}

}  // namespace
}  // namespace tessel::test
