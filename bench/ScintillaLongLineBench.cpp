// A key in the middle of one long line until it is drawn: in the editor's widget, and in Scintilla
// alone with the same font and encoding.
#include <Qsci/qsciscintillabase.h>

#include <QApplication>
#include <QKeyEvent>

#include "Control.h"
#include "Measure.h"
#include "qt/editor/EditorSetUp.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::bench {
namespace {

std::string LineOf(std::size_t length) {
  std::string line;
  line.reserve(length + 32);
  while (line.size() < length) line += "sound 30 /* x */ ";
  line.resize(length);
  return line;
}

/// The least that can be remembered of a line: no word comes twice.
std::string LineOfNumbers(std::size_t length) {
  std::string line;
  line.reserve(length + 32);
  for (std::uint32_t i = 1; line.size() < length; ++i)
    line += std::to_string(i * 2'654'435'761U) + " ";
  line.resize(length);
  return line;
}

void Show(QsciScintillaBase& widget) {
  widget.resize(800, 600);
  widget.show();
  QApplication::processEvents();
}

void PressKey(QWidget& widget) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&widget, &press);
}

void MeasureKeys(benchmark::State& state, const std::string& line, QsciScintillaBase& widget) {
  Measure(
      state, line, [] { QApplication::processEvents(); },
      [&] {
        PressKey(widget);
        widget.viewport()->repaint();
      });
}

void MeasureKeysInEditor(benchmark::State& state, const std::string& line, bool coloured) {
  Control control;
  ScintillaView view(control.Editor(), control.services.clipboard);
  Show(view);
  control.Load(line);
  control.Editor().SetSelStart(static_cast<Position>(line.size()));
  if (coloured) control.PressColorize();
  MeasureKeys(state, line, view);
}

void ScintillaStore_KeyInLongLine(benchmark::State& state) {
  MeasureKeysInEditor(state, LineOf(static_cast<std::size_t>(state.range(0))), false);
}
void ScintillaStore_KeyInLongLineOfNumbers(benchmark::State& state) {
  MeasureKeysInEditor(state, LineOfNumbers(static_cast<std::size_t>(state.range(0))), false);
}
void ScintillaStore_KeyInColouredLongLine(benchmark::State& state) {
  MeasureKeysInEditor(state, LineOf(static_cast<std::size_t>(state.range(0))), true);
}

void ScintillaAlone_KeyInLongLine(benchmark::State& state) {
  const std::string line = LineOf(static_cast<std::size_t>(state.range(0)));
  QsciScintillaBase widget;
  SetUpEditor(widget);
  widget.SendScintilla(QsciScintillaBase::SCI_SETCODEPAGE,
                       static_cast<unsigned long>(QsciScintillaBase::SC_CP_UTF8));
  Show(widget);
  widget.SendScintilla(QsciScintillaBase::SCI_SETTEXT, 0UL, line.c_str());
  widget.SendScintilla(QsciScintillaBase::SCI_GOTOPOS, line.size());
  MeasureKeys(state, line, widget);
}

/// The first drawing of a screen full of lines that are for reading only.
void ScintillaStore_DrawLinesForReading(benchmark::State& state) {
  std::string text;
  const auto length = static_cast<std::size_t>(state.range(0));
  for (int i = 0; i < 60 && text.size() < 10'000'000; ++i) text += LineOfNumbers(length) + "\r\n";
  Control control;
  ScintillaView view(control.Editor(), control.services.clipboard);
  Show(view);
  view.SetReading(Reading{{}, 4'096});
  Measure(
      state, text, [&] { control.Load(text); }, [&] { view.viewport()->repaint(); });
}

void LongLines(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1'000)->Arg(4'096)->Arg(16'384)->Arg(65'536)->Arg(131'072)->Arg(262'144)->Arg(
      1'048'576);
  benchmark->UseManualTime();
}

BENCHMARK(ScintillaStore_KeyInLongLine)->Apply(LongLines);
BENCHMARK(ScintillaStore_KeyInLongLineOfNumbers)->Apply(LongLines);
BENCHMARK(ScintillaStore_KeyInColouredLongLine)->Apply(LongLines);
BENCHMARK(ScintillaAlone_KeyInLongLine)->Apply(LongLines);

BENCHMARK(ScintillaStore_DrawLinesForReading)
    ->Arg(200'000)
    ->Arg(1'000'000)
    ->Arg(10'000'000)
    ->UseManualTime()
    ->Iterations(3);

}  // namespace
}  // namespace tessel::bench
