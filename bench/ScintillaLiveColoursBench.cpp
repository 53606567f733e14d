// What live colours cost in the editor's widget, beside the model's colours in the same run.
#include <QApplication>
#include <QKeyEvent>

#include "ConText.h"
#include "Control.h"
#include "Measure.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::bench {
namespace {

const std::string& LargeFile(const benchmark::State& state) {
  return UserFile(static_cast<std::size_t>(state.range(0)));
}

struct ColouredControl : Control {
  ScintillaView view{Editor(), services.clipboard};

  explicit ColouredControl(bool live) {
    view.SetLiveColours(live);
    view.resize(800, 600);
    view.show();
    QApplication::processEvents();
  }

  void Open(const std::string& text) {
    Load(text);
    if (!view.LiveColours()) PressColorize();
  }
  /// What the next turns of the event loop draw.
  void Draw() { QApplication::processEvents(); }
};

void ScintillaStore_OpenColoured(benchmark::State& state, bool live) {
  const std::string& text = LargeFile(state);
  ColouredControl control(live);
  Measure(
      state, text, [] {},
      [&] {
        control.Open(text);
        control.Draw();
      });
}

void ScintillaStore_JumpToTheEnd(benchmark::State& state, bool live) {
  const std::string& text = LargeFile(state);
  ColouredControl control(live);
  Measure(
      state, text,
      [&] {
        control.Open(text);
        control.Draw();
      },
      [&] {
        control.Editor().SetSelStart(control.Editor().Length());
        control.Draw();
      });
}

/// One key until what it changes is drawn, at a part of the text.
void ScintillaStore_KeyInColoured(benchmark::State& state, bool live, double part,
                                  const char* typed) {
  const std::string& text = LargeFile(state);
  ColouredControl control(live);
  control.Open(text);
  control.Editor().SetSelStart(static_cast<Position>(part * static_cast<double>(text.size())));
  control.Draw();
  double worst = 0;
  const auto press = [&](int key, const QString& keyText) {
    worst = std::max(worst, SecondsOf([&] {
                       QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, keyText);
                       QApplication::sendEvent(&control.view, &event);
                       control.Draw();
                     }));
  };
  const QString keys(typed);
  Measure(
      state, text, [&] { control.Draw(); },
      [&] {
        for (const QChar c : keys) press(c.toUpper().unicode(), c);
        for (qsizetype i = 0; i < keys.size(); ++i) press(Qt::Key_Backspace, {});
      });
  state.counters["worst_ms"] = 1000 * worst;
}

void OneLargeSize(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10'000'000)->UseManualTime();
}
void FewOfOneLargeSize(benchmark::internal::Benchmark* benchmark) {
  OneLargeSize(benchmark);
  benchmark->Iterations(10);
}

BENCHMARK_CAPTURE(ScintillaStore_OpenColoured, Live, true)->Apply(FewOfOneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_OpenColoured, Model, false)->Apply(FewOfOneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_JumpToTheEnd, Live, true)->Apply(FewOfOneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_JumpToTheEnd, Model, false)->Apply(FewOfOneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, LiveAtTheStart, true, 0.0, "x")
    ->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, ModelAtTheStart, false, 0.0, "x")
    ->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, LiveInTheMiddle, true, 0.5, "x")
    ->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, ModelInTheMiddle, false, 0.5, "x")
    ->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, LiveAtTheEnd, true, 1.0, "x")->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, ModelAtTheEnd, false, 1.0, "x")
    ->Apply(OneLargeSize);
BENCHMARK_CAPTURE(ScintillaStore_KeyInColoured, LiveOpeningAComment, true, 0.0, "/*")
    ->Apply(OneLargeSize);

}  // namespace
}  // namespace tessel::bench
