#include "host/find/Expression.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Expression)
};

/// How much is tried before an expression counts as too complex: some 10 milliseconds.
const QString kVerbs = QStringLiteral("(*ANYCRLF)(*BSR_ANYCRLF)(*LIMIT_MATCH=1000000)");

// As TextPattern has it: an edge that is a word character has none as its outer neighbour.
const QString kWordEdge =
    QStringLiteral("(?:(?<![0-9A-Za-z_\\x{80}-\\x{FFFF}])|(?![0-9A-Za-z_\\x{80}-\\x{FFFF}]))");

constexpr double kSlowMilliseconds = 8;
constexpr double kQuickMilliseconds = 1;

QRegularExpression Compiled(const QString& pattern, bool matchCase) {
  auto options =
      QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
  if (!matchCase) options |= QRegularExpression::CaseInsensitiveOption;
  return QRegularExpression(kVerbs + pattern, options);
}

/// The expression as one piece, whatever it leaves open: a quotation, or a comment up to the end of
/// its line.
QString Enclosed(const QString& wanted) {
  const QString quoted = QStringLiteral("(?:") + wanted + QStringLiteral("\\E)");
  return QRegularExpression(quoted).isValid()
             ? quoted
             : QStringLiteral("(?:") + wanted + QStringLiteral("\\E\n)");
}

QString ProblemOf(const QString& wanted) {
  const QRegularExpression plain(wanted);
  if (!plain.isValid()) {
    return Texts::tr("The expression is not valid: %1 (at character %2).")
        .arg(plain.errorString())
        .arg(plain.patternErrorOffset());
  }
  if (wanted.contains(QStringLiteral("(?R)")) || wanted.contains(QStringLiteral("(?0)"))) {
    return Texts::tr(
        "The expression is not valid: it can call a group of its own, as (?1), but "
        "not itself.");
  }
  return {};
}

bool NamesBreaks(const QString& wanted) {
  static const QRegularExpression named(QStringLiteral("\\\\[rnxco0]"));
  return wanted.contains(named);
}

/// Skips up to so many places and tries at each: the limit counts for all of them together.
QString InWindow(const QString& piece, int places, bool anywhere) {
  const QString outsideBreak = QStringLiteral("(?<!\\r(?=\\n))");
  return QStringLiteral("\\G(?s:.{0,%1}?)").arg(places - 1) +
         (anywhere ? QString() : outsideBreak) + QStringLiteral("\\K") + piece;
}

bool InsideBreak(const QString& text, Position at) {
  return at > 0 && at < text.size() && text[at - 1] == u'\r' && text[at] == u'\n';
}

TextMatch PlaceOf(const QRegularExpressionMatch& match, int group) {
  return {std::max<Position>(match.capturedStart(group), 0),
          std::max<Position>(match.capturedLength(group), 0)};
}

QRegularExpressionMatch Tried(const QRegularExpression& expression, const QString& text,
                              Position at, QRegularExpression::MatchOptions options) {
  auto match = expression.match(text, at, QRegularExpression::NormalMatch,
                                options | QRegularExpression::DontCheckSubjectStringMatchOption);
  if (match.isValid()) return match;
  throw RuntimeError(Texts::tr("The expression is too complex for this text.").toStdString());
}

}  // namespace

Expression::Expression(const QString& wanted, const FindChoices& choices)
    : problem_(ProblemOf(wanted)), namesBreaks_(NamesBreaks(wanted)) {
  if (!problem_.isEmpty()) return;
  const QString edge = choices.wholeWord ? kWordEdge : QString();
  const QString piece = edge + Enclosed(wanted) + edge;
  alone_ = Compiled(piece, choices.matchCase);
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    windows_[i] = Compiled(InWindow(piece, kWindows[i], namesBreaks_), choices.matchCase);
  }
  if (!windows_.back().isValid()) {
    problem_ = Texts::tr("The expression is not valid: %1.").arg(windows_.back().errorString());
  }
}

QRegularExpressionMatch Expression::MatchAt(const QString& text, Position at) const {
  return Tried(alone_, text, at, QRegularExpression::AnchorAtOffsetMatchOption);
}

void Expression::ChooseWindow(double milliseconds) const {
  if (milliseconds > kSlowMilliseconds && window_ > 0) --window_;
  if (milliseconds < kQuickMilliseconds && window_ + 1 < kWindows.size()) ++window_;
}

Expression::Look Expression::LookFrom(const QString& text, Position from) const {
  if (!namesBreaks_ && InsideBreak(text, from)) {
    const auto here = MatchAt(text, from);
    if (here.hasMatch()) return {PlaceOf(here, 0), from};
    return {std::nullopt, from + 1};
  }
  const Position next = from + kWindows[window_];
  QElapsedTimer clock;
  clock.start();
  const auto match = Tried(windows_[window_], text, from, QRegularExpression::NoMatchOption);
  ChooseWindow(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  if (match.hasMatch()) return {PlaceOf(match, 0), next};
  // Looking between a CR and its LF has said no already.
  return {std::nullopt, !namesBreaks_ && InsideBreak(text, next) ? next + 1 : next};
}

std::vector<TextMatch> Expression::GroupsOf(const QString& text, const TextMatch& match) const {
  const auto found = MatchAt(text, match.start);
  std::vector<TextMatch> groups;
  groups.reserve(static_cast<std::size_t>(Groups()) + 1);
  groups.push_back(match);  // also where it begins by \K, and is not found from there
  for (int group = 1; group <= Groups(); ++group) groups.push_back(PlaceOf(found, group));
  return groups;
}

}  // namespace tessel
