#include "host/find/DocumentSearch.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

/// What a key waits at most for a slice to end.
constexpr int kSliceMilliseconds = 8;
/// Who types goes on typing: the count can wait.
constexpr int kSettleMilliseconds = 150;

constexpr std::size_t kMostInPart = 2'000;
constexpr int kPartMilliseconds = 4;

/// The selection that shows a match: it cannot begin between a CR and its LF.
SearchArea ShownPlace(const RichTextBox& editor, const TextMatch& match) {
  const bool inBreak = match.start > 0 && match.start < editor.Length() &&
                       editor.Bytes().substr(match.start - 1, 2) == "\r\n";
  return {inBreak ? match.start - 1 : match.start, match.End()};
}

bool IsSelected(const RichTextBox& editor, const TextMatch& match) {
  return ShownPlace(editor, match) == SearchArea{editor.SelStart(), editor.SelEnd()};
}

}  // namespace

DocumentSearch::DocumentSearch(TesselWidget& control) : QObject(&control), control_(control) {
  work_.setSingleShot(true);
  work_.setInterval(0);
  connect(&work_, &QTimer::timeout, this, &DocumentSearch::Work);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, &DocumentSearch::CountAgain);
  ofDocuments_ = {
      control_.Tessel().OpenDocuments().Shown.Connect([this](const Document& document) {
        if (editor_ != nullptr && &document.Editor() != editor_) Attach();
      }),
      control_.Tessel().Controls().rtbCon.Unloading.Connect([this](const RichTextBox& editor) {
        if (&editor == editor_) Detach();
      })};
}

// --- Which text

void DocumentSearch::Attach() {
  RichTextBox& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  if (editor_ == &editor) return;
  Detach();
  editor_ = &editor;
  ofEditor_ = {editor.Store().Edited.Connect([this](const TextEdit& edit) { OnEdited(edit); }),
               editor.Store().Reset.Connect([this] {
                 Forget();
                 DropLimit();
               })};
  settle_.start();
}

void DocumentSearch::Detach() {
  ofEditor_.clear();
  Forget();
  settle_.stop();
  DropLimit();
  editor_ = nullptr;
}

/// What refers to the bytes as they were.
void DocumentSearch::Forget() {
  step_.reset();
  scan_.reset();
  text_.reset();
  found_.reset();
  givenUp_.clear();
  work_.stop();
  settle_.start();
}

void DocumentSearch::OnEdited(const TextEdit& edit) {
  Forget();
  if (!limit_ || edit.at >= limit_->end) return;
  const Position grown = std::ssize(edit.inserted) - std::ssize(edit.removed);
  if (edit.at + std::ssize(edit.removed) <= limit_->start) limit_->start += grown;
  limit_->end = std::max(limit_->start, limit_->end + grown);
}

void DocumentSearch::DropLimit() {
  if (std::exchange(limit_, std::nullopt)) emit limitDropped();
}

void DocumentSearch::LimitTo(const std::optional<SearchArea>& area) {
  limit_ = area;
  CountAgain();
}

SearchArea DocumentSearch::Area() const {
  return limit_.value_or(SearchArea{0, editor_->Length()});
}

SearchedText& DocumentSearch::Text() {
  if (!text_) text_.emplace(editor_->Bytes());
  return *text_;
}

// --- What is looked for

void DocumentSearch::LookFor(const QString& wanted, const FindChoices& choices) {
  Attach();
  step_.reset();
  scan_.reset();
  pattern_.emplace(wanted, choices);
  CountAgain();
}

void DocumentSearch::Stop() {
  if (editor_ == nullptr) return;
  Detach();
  pattern_.reset();
  emit changed();
}

void DocumentSearch::CountAgain() {
  if (editor_ == nullptr || !pattern_) return;
  settle_.stop();
  givenUp_.clear();
  found_.reset();
  step_.reset();
  scan_.emplace(*pattern_, Text(), Area(), kMost);
  WorkUntil(QDeadlineTimer(kSliceMilliseconds));
}

void DocumentSearch::Step(Position from, Direction direction) {
  if (editor_ == nullptr || !pattern_) return;
  if (!scan_) CountAgain();
  const SearchArea area = Area();
  step_.emplace(*pattern_, Text(), area, std::clamp(from, area.start, area.end), direction);
  WorkUntil(QDeadlineTimer(kSliceMilliseconds));
}

Position DocumentSearch::From(Direction direction) {
  const auto current = Selected();
  if (direction == Direction::kBackward) return current ? current->start : editor_->SelStart();
  return current ? pattern_->Behind(Text(), *current) : editor_->SelStart();
}

void DocumentSearch::Select(const SearchArea& area) {
  if (editor_ != nullptr) editor_->SelectByHand(area.start, area.end - area.start);
}

void DocumentSearch::SelectFound() {
  if (found_) Select(ShownPlace(*editor_, *found_));
}

// --- Slices

void DocumentSearch::Work() {
  // A command that lets timers run has the text.
  if (control_.Tessel().Running()) {
    settle_.start();
    return;
  }
  WorkUntil(QDeadlineTimer(kSliceMilliseconds));
}

void DocumentSearch::WorkUntil(const QDeadlineTimer& until) {
  const bool stepping = step_ && !step_->Over();
  try {
    const bool arrived = stepping && step_->Work(until);
    if (arrived) found_ = step_->Found();
    const bool counted = !scan_ || scan_->Work(until);
    if (!counted || (stepping && !arrived)) work_.start();
    emit changed();
    if (arrived) emit stepped(found_.has_value());
  } catch (const RuntimeError& error) {
    givenUp_ = QString::fromUtf8(error.what());
    emit changed();
    if (stepping) emit stepped(false);
  }
}

// --- What is known

DocumentSearch::State DocumentSearch::Now() const {
  if (!pattern_ || pattern_->Empty()) return State::kNothing;
  if (!pattern_->Problem().isEmpty()) return State::kNotValid;
  if (!givenUp_.isEmpty()) return State::kGivenUp;
  if (scan_ && scan_->TooMany()) return State::kTooMany;
  return scan_ && scan_->Over() ? State::kCounted : State::kSearching;
}

QString DocumentSearch::Problem() const {
  return Now() == State::kNotValid ? pattern_->Problem() : givenUp_;
}

const std::vector<TextMatch>& DocumentSearch::Matches() const {
  static const std::vector<TextMatch> none;
  return scan_ ? scan_->Matches() : none;
}

std::optional<TextMatch> DocumentSearch::Current() const {
  if (editor_ == nullptr) return std::nullopt;
  if (found_ && IsSelected(*editor_, *found_)) return found_;
  const auto it = std::ranges::lower_bound(Matches(), editor_->SelStart(), {}, &TextMatch::start);
  if (it == Matches().end() || !IsSelected(*editor_, *it)) return std::nullopt;
  return *it;
}

std::optional<TextMatch> DocumentSearch::Selected() {
  auto match = Current();
  if (match || editor_ == nullptr || !pattern_) return match;
  try {
    match = pattern_->FirstIn(Text(), editor_->SelStart(), editor_->SelStart());
  } catch (const RuntimeError&) {
    return std::nullopt;  // the search itself will say so
  }
  return match && IsSelected(*editor_, *match) ? match : std::nullopt;
}

qsizetype DocumentSearch::CurrentNumber() const {
  const auto current = Current();
  if (!current) return 0;
  const auto it = std::ranges::lower_bound(Matches(), current->start, {}, &TextMatch::start);
  return it == Matches().end() || *it != *current ? 0 : it - Matches().begin() + 1;
}

std::optional<std::vector<TextMatch>> DocumentSearch::MatchesIn(const SearchArea& part) {
  if (!scan_ || !givenUp_.isEmpty()) return std::nullopt;
  const SearchArea area = Area();
  const SearchArea both{std::max(part.start, area.start), std::min(part.end, area.end)};
  if (scan_->Reached() > both.end || (scan_->Over() && !scan_->TooMany())) {
    const auto first = std::ranges::lower_bound(Matches(), both.start, {}, &TextMatch::End);
    const auto last = std::ranges::upper_bound(Matches(), both.end, {}, &TextMatch::start);
    if (first >= last) return std::vector<TextMatch>();
    return std::vector<TextMatch>(first,
                                  first + std::min<std::ptrdiff_t>(last - first, kMostInPart));
  }
  MatchScan scan(*pattern_, Text(), both, kMostInPart);
  try {
    scan.Work(QDeadlineTimer(kPartMilliseconds));
  } catch (const RuntimeError&) {
    return std::nullopt;  // the count will say so
  }
  return scan.Matches();
}

}  // namespace tessel
