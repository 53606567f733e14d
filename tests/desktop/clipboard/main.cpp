// The clipboard of a real display, and those who have it: hanging-clipboard.sh runs this.
#include <gtest/gtest.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <memory>
#include <string_view>

#include "base/RuntimeError.h"
#include "qt/base/SelectionOwner.h"
#include "qt/services/QtClipboard.h"

namespace tessel::test {
namespace {

constexpr const char* kOwner = "--own-the-clipboard";
constexpr qint64 kOneSecond = 1000;

/// Has the clipboard and never answers, as a stopped program.
class SilentOwner {
 public:
  explicit SilentOwner(std::string_view selection) {
    const xcb_window_t window = xcb_generate_id(x_.get());
    const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(x_.get())).data;
    xcb_create_window(x_.get(), 0, window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto asked = xcb_intern_atom(x_.get(), 0, static_cast<std::uint16_t>(selection.size()),
                                       selection.data());
    auto* atom = xcb_intern_atom_reply(x_.get(), asked, nullptr);
    xcb_set_selection_owner(x_.get(), window, atom->atom, XCB_CURRENT_TIME);
    std::free(atom);
    std::free(xcb_get_input_focus_reply(x_.get(), xcb_get_input_focus(x_.get()), nullptr));
    QTest::qWait(200);  // the toolkit has heard of it
  }

 private:
  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> x_{xcb_connect(nullptr, nullptr),
                                                                  &xcb_disconnect};
};

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

TEST(HangingClipboard, BlocksNoPasteLongerThanASecond) {
  const SilentOwner owner("CLIPBOARD");
  QElapsedTimer waited;
  waited.start();
  EXPECT_THROW(QtClipboard().GetText(), RuntimeError);
  EXPECT_LE(waited.elapsed(), kOneSecond);
  EXPECT_GE(waited.elapsed(), kOneSecond / 2) << "it was not asked";
}

TEST(HangingClipboard, IsOneThatHasTheSelectionToo) {
  const SilentOwner owner("PRIMARY");
  EXPECT_FALSE(SelectionOwnerAnswers(QClipboard::Selection));
  EXPECT_TRUE(SelectionOwnerAnswers(QClipboard::Clipboard));
}

TEST(HangingClipboard, IsNoneOfAProgramThatAnswers) {
  const Owner owner("text of another program");
  EXPECT_EQ(QtClipboard().GetText(), "text of another program");
}

TEST(HangingClipboard, IsNotOurOwn) {
  QtClipboard().SetText("text of our own");
  QTest::qWait(200);
  EXPECT_EQ(QtClipboard().GetText(), "text of our own");
}

TEST(HangingClipboard, IsNoneThatNobodyHas) {
  { const SilentOwner gone("CLIPBOARD"); }
  QTest::qWait(200);
  QElapsedTimer waited;
  waited.start();
  EXPECT_EQ(QtClipboard().GetText(), "");
  EXPECT_LE(waited.elapsed(), kOneSecond / 2);
}

int OwnTheClipboard(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::qWait(200);
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
  return RUN_ALL_TESTS();
}
