#include "host/script/BlockMarks.h"

#include <algorithm>
#include <string_view>

#include "qt/editor/EditorSetUp.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

// Several keys that are waiting are one move of the caret.
constexpr int kMarkMilliseconds = 20;
constexpr long kPairFill = 50;
constexpr long kAloneFill = 70;
constexpr long kLine = 255;
constexpr Colour kRedInk = 0x0000C8;

unsigned long Number(long value) { return static_cast<unsigned long>(value); }

bool IsEndOfBlock(std::string_view word) {
  using enum language::Keyword;
  const auto keyword = language::KeywordOf(word);
  return keyword && (*keyword == kState || *keyword == kEnds || *keyword == kActor ||
                     *keyword == kUserActor || *keyword == kEndA);
}

/// What may open or close a block there, without a look at the script.
bool MayBeAtEndOfBlock(std::string_view text, Position caret) {
  constexpr std::string_view kAround = " \t\r\n{}/";
  const auto at = static_cast<std::size_t>(caret);
  const auto isBrace = [&](std::size_t i) {
    return i < text.size() && (text[i] == '{' || text[i] == '}');
  };
  if (isBrace(at) || (at > 0 && isBrace(at - 1))) return true;
  const auto before = at == 0 ? text.npos : text.find_last_of(kAround, at - 1);
  const auto begin = before == text.npos ? 0 : before + 1;
  const auto end = std::min(text.find_first_of(kAround, at), text.size());
  return IsEndOfBlock(text.substr(begin, end - begin));
}

void SetUpIndicator(ScintillaView& view, int number, const QColor& colour, long fill) {
  const unsigned long indicator = Number(number);
  view.SendScintilla(Sci::SCI_INDICSETSTYLE, indicator, long{Sci::INDIC_ROUNDBOX});
  view.SendScintilla(Sci::SCI_INDICSETFORE, indicator, colour);
  view.SendScintilla(Sci::SCI_INDICSETALPHA, indicator, fill);
  view.SendScintilla(Sci::SCI_INDICSETOUTLINEALPHA, indicator, kLine);
  view.SendScintilla(Sci::SCI_INDICSETUNDER, indicator, 1L);
}

void Clear(ScintillaView& view, int indicator) {
  view.SendScintilla(Sci::SCI_SETINDICATORCURRENT, Number(indicator));
  view.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, 0UL, view.SendScintilla(Sci::SCI_GETLENGTH));
}

void Mark(ScintillaView& view, int indicator, language::Range range) {
  const SciPosition begin = view.mirror().PositionOf(range.begin);
  view.SendScintilla(Sci::SCI_SETINDICATORCURRENT, Number(indicator));
  view.SendScintilla(Sci::SCI_INDICATORFILLRANGE, Number(begin),
                     view.mirror().PositionOf(range.end) - begin);
}

bool AreSame(const std::optional<language::BlockEnd>& a,
             const std::optional<language::BlockEnd>& b) {
  if (!a || !b) return !a && !b;
  return a->word == b->word && a->partner == b->partner;
}

}  // namespace

BlockMarks::BlockMarks(TesselWidget& control, OpenScripts& scripts, QObject* parent)
    : QObject(parent), control_(control), scripts_(scripts) {
  soon_.setSingleShot(true);
  soon_.setInterval(kMarkMilliseconds);
  connect(&soon_, &QTimer::timeout, this, &BlockMarks::Update);
  const auto updateSoon = [this] {
    if (!soon_.isActive()) soon_.start();
  };
  connect(&control_, &TesselWidget::caretMoved, this, updateSoon);
  connect(&control_, &TesselWidget::documentChanged, this, updateSoon);
  subscriptions_ = {scripts_.Changed.Connect([this, updateSoon](Slot, const ChangedRange&) {
    textChanged_ = true;
    updateSoon();
  })};
}

std::optional<language::BlockEnd> BlockMarks::EndAtCaret() {
  const Document document = control_.Tessel().OpenDocuments().Current();
  const RichTextBox& editor = document.Editor();
  if (editor.SelLength() > 0 || !MayBeAtEndOfBlock(editor.Bytes(), editor.SelStart())) {
    return std::nullopt;
  }
  return language::BlockEndAt(scripts_.Of(document.Place()), editor.SelStart());
}

void BlockMarks::Update() {
  ScintillaView* view = control_.CurrentEditorView();
  if (view == nullptr || view->mirror().State() != MirrorState::kInStep) return;
  const auto end = EndAtCaret();
  if (view == marked_ && !textChanged_ && AreSame(end, shown_)) return;
  textChanged_ = false;
  if (marked_ != nullptr && marked_ != view) Show(*marked_, std::nullopt);
  Show(*view, end);
  marked_ = view;
  shown_ = end;
}

void BlockMarks::Show(ScintillaView& view, const std::optional<language::BlockEnd>& end) {
  for (const int indicator : {kPair, kAlone}) Clear(view, indicator);
  if (!end) return;
  const EditorTheme theme = ThemeOfWidget(view);
  SetUpIndicator(view, kPair, theme.outline, kPairFill);
  SetUpIndicator(view, kAlone, theme.PaintOf(kRedInk), kAloneFill);
  Mark(view, end->partner ? kPair : kAlone, end->word);
  if (end->partner) Mark(view, kPair, *end->partner);
}

}  // namespace tessel
