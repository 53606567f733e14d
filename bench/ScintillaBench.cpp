// The same with the editor's widget attached, and what Scintilla does by itself with the same text.
#include <Qsci/qscilexercpp.h>
#include <Qsci/qsciscintilla.h>

#include "ConText.h"
#include "Control.h"
#include "Measure.h"
#include "platform/qt/ScintillaView.h"

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

void ScintillaStore_Colour(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  Measure(
      state, text, [&] { control.Load(text); }, [&] { control.PressColorize(); });
}

void ScintillaStore_ResetToBlack(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  control.Load(text);
  Measure(
      state, text,
      [&] {
        control.Editor().SetTag("");
        control.PressColorize();
      },
      [&] { control.PressColorize(); });
}

void ScintillaStore_Convert(benchmark::State& state) {
  const std::string& text = TextFor(state);
  ControlWithWidget control;
  Measure(
      state, text, [&] { control.Load(text); }, [&] { control.control.Convert(); });
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
BENCHMARK(ScintillaStore_Colour)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaStore_ResetToBlack)->Apply(SizesUpTo10MB)->Iterations(5);
BENCHMARK(ScintillaStore_Convert)->Apply(SizesOfConversions);
BENCHMARK(ScintillaAlone_FindWithoutHit)->Apply(SizesUpTo10MB);
BENCHMARK(ScintillaAlone_ColourByItsCppLexer)->Apply(SizesUpTo10MB);

}  // namespace
}  // namespace tessel::bench
