// The clipboard of a real display, and those who have it: hanging-clipboard.sh runs this.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTest>
#include <cstdio>
#include <string>

#include "ScriptedOwner.h"
#include "base/RuntimeError.h"
#include "qt/base/HeldText.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/services/QtClipboard.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

constexpr const char* kOwner = "--own-the-clipboard";
constexpr const char* kGive = "--give";  // a file's text, in pieces
constexpr const char* kPicture = "a picture";
constexpr const char* kAllBytes = "all bytes";
constexpr qint64 kOneSecond = 1000;
constexpr std::size_t kLarge = std::size_t{128} << 20U;

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes + '\0';
}

/// Another program that has the clipboard and answers.
class Owner {
 public:
  explicit Owner(const QString& text) {
    process_.start(QCoreApplication::applicationFilePath(), {kOwner, text});
    process_.waitForReadyRead();
    QTest::qWait(200);
  }
  ~Owner() {
    process_.kill();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

class HangingClipboard : public testing::TestWithParam<Hangs> {};

TEST_P(HangingClipboard, BlocksNoPasteLongerThanASecond) {
  const ScriptedOwner owner("CLIPBOARD", GetParam(), std::string(2'000'000, 'x'));
  QElapsedTimer waited;
  waited.start();
  EXPECT_THROW(QtClipboard().GetText(), RuntimeError);
  EXPECT_LE(waited.elapsed(), kOneSecond);
  EXPECT_GE(waited.elapsed(), kOneSecond / 3) << "it was not asked";
}

TEST_P(HangingClipboard, MayBeTheSelectionToo) {
  const ScriptedOwner owner("PRIMARY", GetParam(), std::string(2'000'000, 'x'));
  EXPECT_FALSE(ReadHeldText(QClipboard::Selection).refusal.isEmpty());
  EXPECT_TRUE(ReadHeldText(QClipboard::Clipboard).refusal.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Wherever, HangingClipboard,
                         testing::Values(Hangs::kAtOnce, Hangs::kAfterItsFormats, Hangs::kHalfWay,
                                         Hangs::kDrips));

TEST(Clipboard, OfALargeTextGivesAllOfIt) {
  std::string text;
  for (int line = 0; text.size() < kLarge; ++line)
    text += "define A " + std::to_string(line) + "\r\n";
  const ScriptedOwner owner("CLIPBOARD", Hangs::kNever, text);
  QElapsedTimer waited;
  waited.start();
  const std::string got = QtClipboard().GetText();
  testing::Test::RecordProperty("Milliseconds", static_cast<int>(waited.elapsed()));
  std::printf("%zu bytes in %lld ms\n", got.size(), static_cast<long long>(waited.elapsed()));
  EXPECT_TRUE(got == text);
}

TEST(Clipboard, ThatHoldsNoTextSaysSo) {
  const Owner owner(kPicture);
  EXPECT_THROW(QtClipboard().GetText(), RuntimeError);
}

TEST(Clipboard, OfAnEditorOfThisKindKeepsEveryByte) {
  const Owner owner(kAllBytes);
  EXPECT_EQ(QtClipboard().GetText(), AllBytes());
}

TEST(Clipboard, OfAProgramThatAnswersGivesItsText) {
  const Owner owner("text of another program");
  EXPECT_EQ(QtClipboard().GetText(), "text of another program");
}

TEST(Clipboard, OfOurOwnGivesItsText) {
  QtClipboard().SetText("text of our own");
  QTest::qWait(200);
  EXPECT_EQ(QtClipboard().GetText(), "text of our own");
}

TEST(Clipboard, ThatNobodyHasGivesNothing) {
  { const ScriptedOwner gone("CLIPBOARD", Hangs::kAtOnce); }
  QTest::qWait(200);
  QElapsedTimer waited;
  waited.start();
  EXPECT_EQ(QtClipboard().GetText(), "");
  EXPECT_LE(waited.elapsed(), kOneSecond / 2);
}

int OwnTheClipboard(const QString& text) {
  auto* clipboard = QGuiApplication::clipboard();
  if (text == kPicture) {
    clipboard->setImage(QImage(2, 2, QImage::Format_RGB32));
  } else if (text == kAllBytes) {
    clipboard->setMimeData(MimeOfBytes(AllBytes()).release());
  } else {
    clipboard->setText(text);
  }
  QTest::qWait(200);
  return ::write(STDOUT_FILENO, "owned\n", 6) == 6 ? QApplication::exec() : 1;
}

int Give(const QString& path) {
  const ScriptedOwner owner("CLIPBOARD", Hangs::kNever, BytesOf(path.toStdString()));
  return ::write(STDOUT_FILENO, "owned\n", 6) == 6 ? QApplication::exec() : 1;
}

}  // namespace
}  // namespace tessel::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.value(1) == tessel::test::kOwner) {
    return tessel::test::OwnTheClipboard(arguments.value(2));
  }
  if (arguments.value(1) == tessel::test::kGive) return tessel::test::Give(arguments.value(2));
  return RUN_ALL_TESTS();
}
