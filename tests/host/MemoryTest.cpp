// Memory that ends at any one moment of what the window's widgets do: the window goes on and says
// so, or the program ends in order. The text is there either way.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <functional>

#include "HostFixture.h"
#include "base/ScopeGuard.h"
#include "faults/HostWorld.h"
#include "host/RecoveryKeeper.h"
#include "host/process/AbruptEnd.h"
#include "host/process/MemoryEnd.h"
#include "qt/editor/ScintillaView.h"
#include "qt/services/QtMessageBox.h"
#include "support/ChildProcess.h"
#include "support/RefusedMemory.h"

namespace tessel::test {
namespace {

struct Gesture {
  const char* name;
  void (*Do)(HostRun& run, const std::string& other);
};

void PrintTo(const Gesture& gesture, std::ostream* out) { *out << gesture.name; }

QWidget* ViewOf(HostRun& run) { return run.window->Control().CurrentEditorView(); }

const Gesture kGestures[] = {
    {"key", [](HostRun& run, const std::string&) { QTest::keyClick(ViewOf(run), Qt::Key_X); }},
    {"open", [](HostRun& run, const std::string& other) { run.window->OpenFiles({other}); }},
    {"backups", [](HostRun& run, const std::string&) { run.MenuItem("&Backups...")->trigger(); }},
    {"about",
     [](HostRun& run, const std::string&) { run.MenuItem("&About Zanth Manager")->trigger(); }},
    {"question",
     [](HostRun&, const std::string&) {
       QTimer::singleShot(0, [] {
         if (auto* box = QApplication::activeModalWidget()) box->close();
       });
       QtMessageBox().Show("?", MessageIcon::kQuestion, kProgramTitle, MessageButtons::kYesNo);
     }},
    {"picture", [](HostRun& run, const std::string&) { run.window->grab(); }},
    {"size", [](HostRun& run, const std::string&) { run.window->resize(700, 500); }},
    {"page", [](HostRun& run, const std::string&) { run.Controls().tbToolBar.Press("ShowTabs"); }},
};

std::string WithoutQ(std::string text) {
  std::erase(text, 'q');
  return text;
}

class WindowWithoutMemory : public testing::TestWithParam<Gesture> {
 protected:
  /// What became of a window in whose gesture that allocation got nothing.
  struct Fate {
    bool refused = true;  ///< it came to that
    bool ended = false;
    std::string wrong = {};  ///< what should not be
  };

  /// With or without the key of the gesture.
  bool IsTheText(const std::string& text) const {
    return text == "typed " + old_ || text == "typed x" + old_;
  }
  /// Opens the file, types, and makes the gesture; "" when all is as it should be afterwards.
  std::string Live(long allocation) {
    MemorySettingsStore settings;
    HostRun run(State(), settings);
    const AbruptEnd abruptEnd([&run] { run.window->KeepEverything(); });
    const MemoryEnd memoryEnd([&run] { return run.window->KeepTexts(); },
                              [&run] { return run.window->Control().Tessel().Running(); });
    run.window->OpenFiles({user_});
    run.Editor(0).Type("typed ");
    QCoreApplication::processEvents();
    bool done = false;
    QTimer::singleShot(0, run.window.get(), [&] {
      RefuseMemoryOnce(allocation);
      const ScopeGuard over([&] { done = true; });
      GetParam().Do(run, other_);
    });
    while (!done) QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    const std::string refused = MemoryWasRefused() ? "refused" : "";
    if (!IsTheText(run.Editor(0).Text())) return "the text is " + run.Editor(0).Text();
    run.Tabs().Select(1);
    run.Editor(0).SelectByHand(0, 0);
    const std::string before = run.Editor(0).Text();
    QTest::keyClick(ViewOf(run), Qt::Key_Q);
    const std::string later = run.Editor(0).Text();
    if (!IsTheText(WithoutQ(later)) || later == before) return "a key makes it " + later;
    if (!run.window->findChild<RecoveryKeeper*>()->KeepNow()) return "it is not kept";
    run.SaveInPlace();
    if (BytesOf(user_) != later) return "it is not saved";
    run.window->close();
    return refused;
  }

  Fate FateAt(long allocation) {
    directory_.Put("user.con", old_);
    std::filesystem::remove_all(State());
    const std::string result = InChild([&] {
      ::alarm(60);
      return Live(allocation);
    });
    if (result == "" || result == "refused") return {.refused = result == "refused"};
    if (!result.starts_with("the child process failed")) return {.wrong = result};
    const std::vector<std::string> offered = Offered(State());
    const std::string path = user_ + ": ";
    const bool kept = offered.size() == 1 && offered[0].starts_with(path) &&
                      IsTheText(offered[0].substr(path.size()));
    return {.ended = true, .wrong = kept ? "" : "it ended with " + testing::PrintToString(offered)};
  }
  std::string State() const { return directory_ / "state"; }

  TempDirectory directory_;
  const std::string old_ = "define A 1\r\n";
  const std::string user_ = directory_.Put("user.con", old_);
  const std::string other_ = directory_.Put("other.con", "define B 2\r\n");
};

TEST_P(WindowWithoutMemory, GoesOnOrEndsWithTheTextKept) {
  if (!kMemoryCanBeRefused) GTEST_SKIP() << "the sanitizers have a memory of their own";
  const char* const dense = std::getenv("TESSEL_MEMORY_STEPS");
  const long steps = dense == nullptr ? 2 : std::atol(dense);
  int lived = 0;
  int ended = 0;
  for (long allocation = 1;; allocation += std::max(1L, allocation / steps)) {
    const Fate fate = FateAt(allocation);
    EXPECT_EQ(fate.wrong, "") << "allocation " << allocation;
    if (!fate.refused) break;
    ++(fate.ended ? ended : lived);
  }
  std::cout << "The window went on " << lived << " times and ended " << ended << " times.\n";
  EXPECT_GE(lived + ended, 10);
}

class Uncaught : public HostTest {};

TEST_F(Uncaught, AnExceptionEndsTheProgramWithTheTextKept) {
  run_.reset();
  const std::string result = InChild([&]() -> std::string {
    HostRun run(State(), settings_);
    const AbruptEnd abruptEnd([&run] { run.window->KeepEverything(); });
    run.Editor(0).Type("typed");
    const std::function<void()> fail = [] { throw std::bad_alloc(); };
    [&]() noexcept { fail(); }();
    return "it went on";
  });
  EXPECT_EQ(result, "the child process failed: ");
  EXPECT_THAT(Offered(State()), testing::ElementsAre(": typed"));
}

std::string NameOf(const testing::TestParamInfo<Gesture>& gesture) { return gesture.param.name; }

INSTANTIATE_TEST_SUITE_P(In, WindowWithoutMemory, testing::ValuesIn(kGestures), NameOf);

}  // namespace
}  // namespace tessel::test
