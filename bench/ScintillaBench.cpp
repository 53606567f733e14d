// The same with the editor's widget attached, and what Scintilla does by itself with the same text.
#include <Qsci/qscilexercpp.h>
#include <Qsci/qsciscintilla.h>

#include <QApplication>

#include "ConText.h"
#include "Control.h"
#include "Measure.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::bench {
namespace {

const std::string& TextFor(const benchmark::State& state) {
  return UserFile(static_cast<std::size_t>(state.range(0)));
}

struct ControlWithWidget : Control {
  ScintillaView view{Editor(), services.clipboard};

  ControlWithWidget() {
    view.resize(800, 600);
    view.show();
    QApplication::processEvents();
  }

  /// Draws the window, as the next turn of the event loop would.
  void Draw() { view.viewport()->repaint(); }
  void LoadAndDraw(const std::string& text) {
    Load(text);
    Draw();
  }
  void TakeAllColours() {
    view.SendScintilla(QsciScintillaBase::SCI_COLOURISE,
                       view.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED), -1L);
  }
  bool HasAllColours() const {
    return view.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED) ==
           view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
  }
};

void ScintillaStore_FindWithoutHit(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  control.Load(text);
  Measure(
      state, text, [] {},
      [&] {
        benchmark::DoNotOptimize(
            control.Editor().Find("useractor", 0, std::nullopt, kFindWholeWord));
      });
}

// The widget takes colours where it draws them: once until the window shows them, and once until it
// has been made to take all.
void ScintillaStore_ColourUntilDrawn(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  Measure(
      state, text, [&] { control.LoadAndDraw(text); },
      [&] {
        control.PressColorize();
        control.Draw();
      });
}

void ScintillaStore_ColourWhole(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  Measure(
      state, text, [&] { control.LoadAndDraw(text); },
      [&] {
        control.PressColorize();
        control.TakeAllColours();
      });
  if (!control.HasAllColours()) state.SkipWithError("the widget lacks colours");
}

void ScintillaStore_ResetToBlackUntilDrawn(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  control.Load(text);
  Measure(
      state, text,
      [&] {
        control.Editor().SetTag("");
        control.PressColorize();
        control.TakeAllColours();
      },
      [&] {
        control.PressColorize();
        control.Draw();
      });
}

void ScintillaStore_ConvertUntilDrawn(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  Measure(
      state, text, [&] { control.LoadAndDraw(text); },
      [&] {
        control.control.Convert();
        control.Draw();
      });
  if (!control.services.messages.shown.empty()) state.SkipWithError("the conversion was refused");
}

void ScintillaAlone_FindWithoutHit(benchmark::State& state) {
  const std::string& text = TextFor(state);
  QsciScintillaBase widget;
  widget.SendScintilla(QsciScintillaBase::SCI_SETCODEPAGE, 0UL);
  widget.SendScintilla(QsciScintillaBase::SCI_SETTEXT, 0UL, text.c_str());
  widget.SendScintilla(QsciScintillaBase::SCI_SETSEARCHFLAGS,
                       static_cast<unsigned long>(QsciScintillaBase::SCFIND_WHOLEWORD));
  const std::string wanted = "useractor";
  Measure(
      state, text, [] {},
      [&] {
        widget.SendScintilla(QsciScintillaBase::SCI_SETTARGETSTART, 0UL);
        widget.SendScintilla(QsciScintillaBase::SCI_SETTARGETEND, text.size());
        benchmark::DoNotOptimize(widget.SendScintilla(QsciScintillaBase::SCI_SEARCHINTARGET,
                                                      wanted.size(), wanted.c_str()));
      });
}

void ScintillaAlone_ColourByItsCppLexer(benchmark::State& state) {
  const std::string& text = TextFor(state);
  QsciScintilla widget;
  QsciLexerCPP lexer;
  widget.setLexer(&lexer);
  widget.SendScintilla(QsciScintillaBase::SCI_SETTEXT, 0UL, text.c_str());
  Measure(
      state, text, [&] { widget.SendScintilla(QsciScintillaBase::SCI_CLEARDOCUMENTSTYLE); },
      [&] { widget.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L); });
}

BENCHMARK(ScintillaStore_FindWithoutHit)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaStore_ColourUntilDrawn)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaStore_ColourWhole)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaStore_ResetToBlackUntilDrawn)->Apply(SizesUpTo10MB)->Iterations(5);
BENCHMARK(ScintillaStore_ConvertUntilDrawn)->Apply(SizesOfConversions);
BENCHMARK(ScintillaAlone_FindWithoutHit)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaAlone_ColourByItsCppLexer)->Apply(SizesUpTo10MB);

}  // namespace
}  // namespace tessel::bench
