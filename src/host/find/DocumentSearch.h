// The search in the document in front.
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>
#include <vector>

#include "host/find/MatchScan.h"
#include "host/find/MatchStep.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// Counts the matches in the document in front and goes from one to the next. It works in slices
/// while nothing else happens, and begins again a moment after the text was changed.
class DocumentSearch : public QObject {
  Q_OBJECT

 public:
  /// More matches are not counted.
  static constexpr std::size_t kMost = 10'000;

  enum class State { kNothing, kNotValid, kSearching, kCounted, kTooMany, kGivenUp };

  /// `control` outlives it.
  explicit DocumentSearch(TesselWidget& control);

  /// Looks for something else from now on.
  void LookFor(const QString& wanted, const FindChoices& choices);
  /// Looks for nothing any more; LookFor begins again.
  void Stop();
  /// Begins the count again at once: the text was changed by the caller.
  void CountAgain();

  /// Goes to a match; stepped tells which. It may come before this returns.
  void Step(Position from, Direction direction);

  /// Searches there only, until another text takes its place. Edits move it.
  void LimitTo(const std::optional<SearchArea>& area);
  const std::optional<SearchArea>& Limit() const { return limit_; }

  const SearchPattern* Pattern() const { return pattern_ ? &*pattern_ : nullptr; }
  State Now() const;
  /// Why it is kNotValid or kGivenUp, for the user.
  QString Problem() const;
  /// Those that are known, in order.
  const std::vector<TextMatch>& Matches() const;
  /// The match that is selected.
  std::optional<TextMatch> Current() const;
  /// The same, also where the count has not come to it yet.
  std::optional<TextMatch> Selected();
  /// Its place among the matches, from 1; 0 when that is not known.
  qsizetype CurrentNumber() const;
  /// Those in a small part of the text, such as the one in sight. Nothing while the text has just
  /// been changed: what was there before moves with the text.
  std::optional<std::vector<TextMatch>> MatchesIn(const SearchArea& part);

  /// What the last step has found; nothing since the text was changed.
  const std::optional<TextMatch>& Found() const { return found_; }
  /// The last step went on at the other end of the text.
  bool Wrapped() const { return step_ && step_->Wrapped(); }
  Direction Way() const { return step_ ? step_->Way() : Direction::kForward; }
  /// Where a step from the selection begins.
  Position From(Direction direction);
  /// Selects, as a person does.
  void Select(const SearchArea& area);
  void SelectFound();

  /// The text as it is searched.
  SearchedText& Text();

 signals:
  /// State, number or matches are others.
  void changed();
  /// A step has ended: `found` when there was a match.
  void stepped(bool found);
  /// The limit was dropped, as another text has taken its place.
  void limitDropped();

 private:
  void Attach();
  void Detach();
  void Forget();
  void OnEdited(const TextEdit& edit);
  void DropLimit();
  void Work();
  void WorkUntil(const QDeadlineTimer& until);
  SearchArea Area() const;

  TesselWidget& control_;
  RichTextBox* editor_ = nullptr;
  std::optional<SearchPattern> pattern_;
  std::optional<SearchArea> limit_;
  // The search in the text as it stands; all nothing behind an edit
  std::optional<SearchedText> text_;
  std::optional<MatchScan> scan_;
  std::optional<MatchStep> step_;
  std::optional<TextMatch> found_;
  QString givenUp_;
  QTimer work_;
  QTimer settle_;
  std::vector<Subscription> ofEditor_;
  std::vector<Subscription> ofDocuments_;
};

}  // namespace tessel
