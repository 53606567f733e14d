#include "host/find/MatchScan.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

/// An expression that needs longer is as good as one that never ends.
constexpr qint64 kMostNanoseconds = 20'000'000'000;

}  // namespace

MatchScan::MatchScan(const SearchPattern& pattern, SearchedText& text, const SearchArea& area,
                     std::size_t most)
    : pattern_(pattern), text_(text), area_(area), most_(most), at_(area.start) {
  over_ = pattern.Empty() || !pattern.Problem().isEmpty();
}

bool MatchScan::Work(const QDeadlineTimer& until) {
  QElapsedTimer clock;
  clock.start();
  const auto mayGoOn = [&] {
    return !over_ && !until.hasExpired() && spent_ + clock.nsecsElapsed() < kMostNanoseconds;
  };
  try {
    while (mayGoOn()) LookOnce();
  } catch (const RuntimeError&) {
    over_ = true;
    throw;
  }
  spent_ += clock.nsecsElapsed();
  if (over_ || spent_ < kMostNanoseconds) return over_;
  over_ = true;
  throw RuntimeError(
      QCoreApplication::translate("MatchScan", "The search takes too long in this text.")
          .toStdString());
}

void MatchScan::LookOnce() {
  if (pattern_.NeedsUnicode() && !text_.TranslateSome()) return;
  if (at_ > area_.end) {
    over_ = true;
    return;
  }
  const SearchPattern::Look look = pattern_.LookFrom(text_, at_);
  if (look.match) {
    Take(*look.match);
  } else {
    at_ = look.next;
  }
}

void MatchScan::Take(const TextMatch& match) {
  over_ = match.End() > area_.end;
  if (over_) return;
  matches_.push_back(match);
  at_ = pattern_.Behind(text_, match);
  over_ = TooMany();
}

}  // namespace tessel
