#include "host/view/MarkStrip.h"

#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

#include "qt/editor/EditorTheme.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr int kWidth = 11;
constexpr int kMarkHeight = 3;
constexpr int kLeft = 1;
constexpr int kChangeWidth = 4;
constexpr int kMatchLeft = 6;
constexpr int kMatchWidth = 4;
/// So near to a mark a click means the mark.
constexpr int kNear = 4;

// 3:1 and more on a light and on a dark ground.
const QColor kChangeColour(0x1d, 0x8a, 0x4e);
const QColor kMatchColour(0xb5, 0x76, 0x00);

unsigned long Number(long value) { return static_cast<unsigned long>(value); }

long LineOf(ScintillaView& view, Position offset) {
  return view.SendScintilla(Sci::SCI_LINEFROMPOSITION, Number(view.mirror().PositionOf(offset)));
}

/// The nearest mark that is near enough, or null.
template <class Mark, class Distance>
const Mark* NearestOf(const std::vector<Mark>& marks, const Distance& distanceOf) {
  const Mark* nearest = nullptr;
  int least = kNear + 1;
  for (const Mark& mark : marks) {
    const int distance = distanceOf(mark);
    if (distance >= least) continue;
    least = distance;
    nearest = &mark;
  }
  return nearest;
}

void SortOnce(std::vector<int>& rows) {
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

}  // namespace

MarkColours MarkColoursOf(const QPalette& palette) {
  const EditorTheme theme = ThemeOf(palette, QPalette::Active);
  return {theme.marginBackground, kChangeColour, kMatchColour, theme.text};
}

LineSpan LinesOf(ScintillaView& view, const ChangedPlace& place) {
  const std::string_view text = view.mirror().Model().Bytes();
  const Position length = std::ssize(text);
  const Position end = std::min(place.end, length);
  Position start = std::min(place.start, end);
  const auto at = [&](Position offset) { return text[static_cast<std::size_t>(offset)]; };
  const bool cr = start < end && at(start) == '\r';
  if (cr) ++start;
  if (start < end && at(start) == '\n') ++start;
  const Position last = end > start && (at(end - 1) == '\n' || at(end - 1) == '\r') ? end - 1 : end;
  return {LineOf(view, start), LineOf(view, last)};
}

MarkStrip::MarkStrip(ScintillaView& view) : QWidget(&view), view_(view) {
  setAccessibleName(tr("Marks"));
  setAccessibleDescription(tr("Where the matches and the changed lines are"));
  setCursor(Qt::PointingHandCursor);
  view_.installEventFilter(this);
  view_.viewport()->installEventFilter(this);
  hide();
}

void MarkStrip::SetWanted(bool wanted) {
  view_.LeaveAtRight(wanted ? kWidth : 0);
  setVisible(wanted);
  Place();
}

// The room that the view leaves lies behind its viewport.
void MarkStrip::Place() {
  if (isHidden()) return;
  const QRect text = view_.viewport()->geometry();
  setGeometry(text.right() + 1, text.top(), kWidth, text.height());
}

bool MarkStrip::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move ||
                     event->type() == QEvent::Show;
  if (moved && (watched == &view_ || watched == view_.viewport())) Place();
  return false;
}

// --- Where marks stand

// Lines count as they are shown, as for the scroll bar. A short text stands beside its marks.
int MarkStrip::RowOf(long line) const {
  const auto shown = [this](long of) {
    return view_.SendScintilla(Sci::SCI_VISIBLEFROMDOCLINE, Number(of));
  };
  const long lines = view_.SendScintilla(Sci::SCI_GETLINECOUNT);
  const long rowHeight = view_.SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL);
  const long whole = std::max({shown(lines - 1) + 1, rowHeight > 0 ? height() / rowHeight : 1, 1L});
  return static_cast<int>(shown(line) * (height() - kMarkHeight) / whole);
}

int MarkStrip::RowOfOffset(Position offset) const {
  return RowOf(LineOf(view_, std::min(offset, view_.mirror().Model().Length())));
}

int MarkStrip::CaretRow() const {
  const long caret = view_.SendScintilla(Sci::SCI_GETCURRENTPOS);
  return RowOf(view_.SendScintilla(Sci::SCI_LINEFROMPOSITION, Number(caret)));
}

// While the widget has not got the text yet, what was there before stays.
void MarkStrip::Reckon() {
  if (isHidden() || view_.mirror().State() != MirrorState::kInStep) return;
  matchRows_.clear();
  changeRows_.clear();
  matchRows_.reserve(matches_.size());
  for (const TextMatch& match : matches_) matchRows_.push_back(RowOfOffset(match.start));
  for (const ChangedPlace& place : changes_) {
    const auto [first, last] = LinesOf(view_, place);
    const int bottom = RowOf(last);
    for (int row = RowOf(first); row <= bottom; ++row) changeRows_.push_back(row);
  }
  SortOnce(matchRows_);
  SortOnce(changeRows_);
  update();
}

void MarkStrip::SetMatches(const std::vector<TextMatch>& matches) {
  if (matches == matches_) return;
  matches_ = matches;
  Reckon();
}

void MarkStrip::SetChanges(std::span<const ChangedPlace> changes) {
  changes_.assign(changes.begin(), changes.end());
  Reckon();
}

void MarkStrip::FollowCaret() {
  if (isVisible() && CaretRow() != caretRow_) update();
}

void MarkStrip::resizeEvent(QResizeEvent*) { Reckon(); }

void MarkStrip::paintEvent(QPaintEvent*) {
  const MarkColours colours = MarkColoursOf(palette());
  QPainter painter(this);
  painter.fillRect(rect(), colours.ground);
  for (const int row : changeRows_) {
    painter.fillRect(kLeft, row, kChangeWidth, kMarkHeight, colours.change);
  }
  for (const int row : matchRows_) {
    painter.fillRect(kMatchLeft, row, kMatchWidth, kMarkHeight, colours.match);
  }
  caretRow_ = CaretRow();
  painter.fillRect(0, caretRow_ + 1, width(), 1, colours.caret);
}

// --- What is under the pointer

const TextMatch* MarkStrip::MatchAt(int row) const {
  return NearestOf(matches_, [&](const TextMatch& match) {
    return std::abs(RowOfOffset(match.start) + kMarkHeight / 2 - row);
  });
}

const ChangedPlace* MarkStrip::ChangeAt(int row) const {
  return NearestOf(changes_, [&](const ChangedPlace& place) {
    const auto [first, last] = LinesOf(view_, place);
    const int middle = row - kMarkHeight / 2;
    return std::max({RowOf(first) - middle, middle - RowOf(last), 0});
  });
}

long MarkStrip::LineAt(int row) const {
  const long lines = view_.SendScintilla(Sci::SCI_GETLINECOUNT);
  long first = 0;
  for (long count = lines; count > 0;) {
    const long half = count / 2;
    if (RowOf(first + half) < row) {
      first += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return std::min(first, lines - 1);
}

QString MarkStrip::TipAt(int row) const {
  if (const TextMatch* match = MatchAt(row)) {
    const auto number = match - matches_.data() + 1;
    return tr("Match %1 of %2, line %3")
        .arg(number)
        .arg(matches_.size())
        .arg(LineOf(view_, match->start) + 1);
  }
  if (const ChangedPlace* place = ChangeAt(row)) {
    const auto [first, last] = LinesOf(view_, *place);
    return first == last ? tr("Line %1, changed").arg(first + 1)
                         : tr("Lines %1 to %2, changed").arg(first + 1).arg(last + 1);
  }
  return tr("Line %1").arg(LineAt(row) + 1);
}

bool MarkStrip::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), TipAt(help->pos().y()), this);
  return true;
}

void MarkStrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int row = event->position().toPoint().y();
  if (const TextMatch* match = MatchAt(row)) return emit wanted(match->start, match->End());
  if (const ChangedPlace* place = ChangeAt(row)) return emit wanted(place->start, place->start);
  const long line = view_.SendScintilla(Sci::SCI_VISIBLEFROMDOCLINE, Number(LineAt(row)));
  const long rows = view_.SendScintilla(Sci::SCI_LINESONSCREEN);
  view_.SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, Number(std::max(0L, line - rows / 2)));
}

}  // namespace tessel
