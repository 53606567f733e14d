#include "host/problems/ProblemMarks.h"

#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "host/problems/ProblemModel.h"
#include "qt/base/QtText.h"
#include "qt/editor/EditorSetUp.h"
#include "qt/looks/Theme.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

// The widget has the text of the document in front by then.
constexpr int kMarkSoonMilliseconds = 20;

struct Underline {
  int indicator;
  long style;
  Colour colour;
};

/// By severity. High contrast has the text's own colour for all: there the shapes differ.
constexpr Underline kUnderlines[] = {
    {ProblemMarks::kIndicators[0], Sci::INDIC_DOTS, 0xC8722F},
    {ProblemMarks::kIndicators[1], Sci::INDIC_SQUIGGLELOW, 0x0076B5},
    {ProblemMarks::kIndicators[2], Sci::INDIC_SQUIGGLE, 0x0000C8},
};

unsigned long Unsigned(long value) { return static_cast<unsigned long>(value); }

void SetUpUnderlines(ScintillaView& view) {
  const EditorTheme theme = ThemeOfWidget(view);
  const bool plain = IsHighContrast(view.palette());
  for (const Underline& line : kUnderlines) {
    view.SendScintilla(Sci::SCI_INDICSETSTYLE, Unsigned(line.indicator), line.style);
    view.SendScintilla(Sci::SCI_INDICSETFORE, Unsigned(line.indicator),
                       plain ? theme.text : theme.PaintOf(line.colour));
  }
}

void ClearUnderlines(ScintillaView& view) {
  const long length = view.SendScintilla(Sci::SCI_GETLENGTH);
  for (const Underline& line : kUnderlines) {
    view.SendScintilla(Sci::SCI_SETINDICATORCURRENT, Unsigned(line.indicator));
    view.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, 0UL, length);
  }
}

ScintillaView* ViewOf(QObject* watched) {
  auto* view = qobject_cast<ScintillaView*>(watched);
  return view != nullptr ? view : qobject_cast<ScintillaView*>(watched->parent());
}

}  // namespace

language::Range UnderlinedFor(std::string_view text, language::Range range) {
  constexpr std::string_view kBreak = "\r\n";
  const auto length = std::ssize(text);
  const Position begin = std::min(range.begin, length);
  const auto lineEnd = text.find_first_of(kBreak, static_cast<std::size_t>(begin));
  const Position limit = lineEnd == text.npos ? length : static_cast<Position>(lineEnd);
  if (begin < limit) return {begin, std::clamp(range.end, begin + 1, limit)};
  if (begin == 0) return {0, 0};
  const auto last = text.find_last_not_of(kBreak, static_cast<std::size_t>(begin - 1));
  if (last == text.npos) return {begin, begin};
  return {static_cast<Position>(last), static_cast<Position>(last) + 1};
}

ProblemMarks::ProblemMarks(TesselWidget& control, ProblemList& problems, QObject* parent)
    : QObject(parent), control_(control), problems_(problems), editors_(control) {
  soon_.setSingleShot(true);
  soon_.setInterval(kMarkSoonMilliseconds);
  connect(&soon_, &QTimer::timeout, this, &ProblemMarks::Mark);
  editors_.Always([this](ScintillaView& view) {
    SetUpUnderlines(view);
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
  });
  subscriptions_ = {
      problems_.Replaced.Connect([this] { soon_.start(); }),
      control_.Tessel().OpenDocuments().Shown.Connect([this](const Document&) { soon_.start(); }),
  };
}

void ProblemMarks::Mark() {
  ScintillaView* view = control_.CurrentEditorView();
  if (view == nullptr || view->mirror().State() != MirrorState::kInStep) return;
  ClearUnderlines(*view);
  const Document document = control_.Tessel().OpenDocuments().Current();
  const std::string_view text = document.Editor().Bytes();
  for (const Problem& problem : problems_.All()) {
    if (problem.slot != document.Place()) continue;
    const language::Range range = UnderlinedFor(text, problems_.RangeOf(problem));
    const long begin = view->mirror().PositionOf(range.begin);
    const auto& line = kUnderlines[static_cast<std::size_t>(problem.Severity())];
    view->SendScintilla(Sci::SCI_SETINDICATORCURRENT, Unsigned(line.indicator));
    view->SendScintilla(Sci::SCI_INDICATORFILLRANGE, Unsigned(begin),
                        view->mirror().PositionOf(range.end) - begin);
  }
}

bool ProblemMarks::ShowTip(ScintillaView& view, QPoint at, QPoint onScreen) {
  if (&view != control_.CurrentEditorView()) return false;
  if (view.mirror().State() != MirrorState::kInStep) return false;
  const long position =
      view.SendScintilla(Sci::SCI_POSITIONFROMPOINTCLOSE, Unsigned(at.x()), long{at.y()});
  if (position < 0) return false;
  const Position offset = view.mirror().OffsetOf(position);
  const Document document = control_.Tessel().OpenDocuments().Current();
  const std::string_view text = document.Editor().Bytes();
  QStringList sentences;
  for (const Problem& problem : problems_.All()) {
    if (problem.slot != document.Place()) continue;
    const language::Range range = UnderlinedFor(text, problems_.RangeOf(problem));
    if (range.Contains(offset)) sentences += SpokenTextOf(problem);
  }
  if (sentences.isEmpty()) return false;
  QToolTip::showText(onScreen, PlainToolTip(sentences.join('\n')), view.viewport());
  return true;
}

bool ProblemMarks::eventFilter(QObject* watched, QEvent* event) {
  ScintillaView* view = ViewOf(watched);
  if (view == nullptr) return false;
  if (event->type() == QEvent::PaletteChange && watched == view) SetUpUnderlines(*view);
  if (event->type() != QEvent::ToolTip || watched != view->viewport()) return false;
  const auto* help = static_cast<QHelpEvent*>(event);
  return ShowTip(*view, help->pos(), help->globalPos());
}

}  // namespace tessel
