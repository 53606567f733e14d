#include "host/find/DocumentReplace.h"

#include <QDeadlineTimer>
#include <limits>
#include <utility>

#include "base/RuntimeError.h"
#include "host/find/ReplaceMatches.h"
#include "qt/editor/EditorKeys.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

constexpr auto kUnlimited = std::numeric_limits<std::size_t>::max() - 1;

bool HasMatch(const SearchPattern& pattern, const RichTextBox& editor) {
  SearchedText text(editor.Bytes());
  MatchScan scan(pattern, text, {0, text.Length()}, 0);
  scan.Work(QDeadlineTimer(QDeadlineTimer::Forever));
  return scan.TooMany();
}

}  // namespace

QString DocumentReplace::Refusal() const {
  if (control_.Tessel().Running()) return tr("Another command is still on its way.");
  if (!search_.Problem().isEmpty()) return search_.Problem();
  const ScintillaView* view = control_.CurrentEditorView();
  const bool reading = view != nullptr && view->CurrentReading();
  return reading ? view->CurrentReading()->why : QString();
}

Replacement DocumentReplace::ReplacementBy(const QString& text) const {
  const SearchPattern& pattern = *search_.Pattern();
  if (!pattern.NeedsUnicode()) return Replacement(text);
  const RichTextBox& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  return {text, pattern.Groups(), LineEndOfReturn(editor.Bytes())};
}

void DocumentReplace::Change(RichTextBox& editor, std::vector<TextChange> changes) {
  control_.Tessel().Run([&] { MakeChanges(editor, std::move(changes)); });
}

QString DocumentReplace::One(const QString& text) try {
  if (search_.Pattern() == nullptr) return {};
  if (QString refusal = Refusal(); !refusal.isEmpty()) return refusal;
  const Replacement replacement = ReplacementBy(text);
  if (!replacement.Problem().isEmpty()) return replacement.Problem();
  Position from = search_.From(Direction::kForward);
  if (const auto match = search_.Selected()) {
    const Position behind = search_.Pattern()->Behind(search_.Text(), *match) - match->End();
    auto changes = ChangesOf(*search_.Pattern(), search_.Text(), {*match}, replacement);
    from = match->start + std::ssize(changes.front().inserted) + behind;
    const Document front = control_.Tessel().OpenDocuments().Current();
    Change(front.Editor(), std::move(changes));
    Replaced.Raise(1, {front.Place()});
  }
  search_.Step(from, Direction::kForward);
  return {};
} catch (const RuntimeError& error) {
  return QString::fromUtf8(error.what());
}

std::size_t DocumentReplace::ReplaceIn(const std::optional<SearchArea>& area,
                                       const Replacement& replacement) {
  RichTextBox& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  SearchedText text(editor.Bytes());
  MatchScan scan(*search_.Pattern(), text, area.value_or(SearchArea{0, text.Length()}), kUnlimited);
  scan.Work(QDeadlineTimer(QDeadlineTimer::Forever));
  Change(editor, ChangesOf(*search_.Pattern(), text, scan.Matches(), replacement));
  return scan.Matches().size();
}

QString DocumentReplace::All(const QString& text) {
  if (search_.Pattern() == nullptr) return {};
  if (QString refusal = Refusal(); !refusal.isEmpty()) return refusal;
  try {
    const Replacement replacement = ReplacementBy(text);
    if (!replacement.Problem().isEmpty()) return replacement.Problem();
    const std::size_t replaced = ReplaceIn(search_.Limit(), replacement);
    search_.CountAgain();
    if (replaced == 0) return tr("Nothing was found to replace.");
    Replaced.Raise(replaced, {control_.Tessel().OpenDocuments().Current().Place()});
    return {};
  } catch (const RuntimeError& error) {
    return QString::fromUtf8(error.what());
  }
}

QString DocumentReplace::Everywhere(const QString& text) {
  if (search_.Pattern() == nullptr) return {};
  if (control_.Tessel().Running()) return Refusal();
  const QString refusedText = ReplacementBy(text).Problem();
  if (!refusedText.isEmpty()) return refusedText;
  const DocumentList& documents = control_.Tessel().OpenDocuments();
  const Slot front = documents.Current().Place();
  std::size_t replaced = 0;
  std::vector<Slot> changed;
  QString problem;
  try {
    for (const Document& document : documents.All()) {
      if (!HasMatch(*search_.Pattern(), document.Editor())) continue;
      documents.Select(document.Place());
      if (const QString refusal = Refusal(); !refusal.isEmpty()) {
        problem = refusal;
        continue;
      }
      replaced += ReplaceIn(std::nullopt, ReplacementBy(text));
      changed.push_back(document.Place());
    }
  } catch (const RuntimeError& error) {
    problem = QString::fromUtf8(error.what());
  }
  if (documents.Current().Place() != front) documents.Select(front);
  search_.CountAgain();
  if (replaced == 0) return problem.isEmpty() ? tr("Nothing was found to replace.") : problem;
  Replaced.Raise(replaced, changed);
  return problem;
}

}  // namespace tessel
