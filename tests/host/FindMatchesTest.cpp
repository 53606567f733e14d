// What the find bar finds: plain texts against a naive model, regular expressions by example.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QElapsedTimer>
#include <limits>

#include "base/RuntimeError.h"
#include "host/find/MatchScan.h"
#include "qt/base/QtText.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

constexpr FindChoices kPlain{};
constexpr FindChoices kCase{.matchCase = true};
constexpr FindChoices kExpression{.regularExpression = true};
constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max() - 1;

std::vector<TextMatch> MatchesOf(const QString& wanted, const FindChoices& choices,
                                 std::string_view bytes, std::optional<SearchArea> area = {}) {
  const SearchPattern pattern(wanted, choices);
  SearchedText text(bytes);
  MatchScan scan(pattern, text, area.value_or(SearchArea{0, text.Length()}), kAll);
  scan.Work(QDeadlineTimer(QDeadlineTimer::Forever));
  return scan.Matches();
}

/// The text with a pair of brackets around each match.
std::string Bracketed(const QString& wanted, const FindChoices& choices, std::string text) {
  const auto matches = MatchesOf(wanted, choices, std::string(text));
  for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
    text.insert(static_cast<std::size_t>(match->End()), "]");
    text.insert(static_cast<std::size_t>(match->start), "[");
  }
  return text;
}

std::string Expressed(const QString& wanted, const std::string& text) {
  return Bracketed(wanted, kExpression, text);
}

QString ProblemOf(const QString& wanted) { return SearchPattern(wanted, kExpression).Problem(); }

// --- Plain texts

bool IsWordAt(std::string_view text, Position at) {
  return at >= 0 && at < std::ssize(text) && IsWordByte(static_cast<unsigned char>(text[at]));
}

/// As slow and as plain as it can be said.
std::vector<TextMatch> NaiveMatches(std::string_view wanted, const FindChoices& choices,
                                    std::string_view text) {
  const auto folded = [&](std::string_view part) {
    return choices.matchCase ? std::string(part) : ToLowerText(part);
  };
  const Position length = std::ssize(wanted);
  std::vector<TextMatch> matches;
  for (Position at = 0; at + length <= std::ssize(text);) {
    const bool same = folded(text.substr(at, wanted.size())) == folded(wanted);
    const bool splitsWord = (IsWordAt(text, at - 1) && IsWordAt(text, at)) ||
                            (IsWordAt(text, at + length - 1) && IsWordAt(text, at + length));
    const bool hit = same && !(choices.wholeWord && splitsWord);
    if (hit) matches.push_back({at, length});
    at += hit ? length : 1;
  }
  return matches;
}

RC_GTEST_PROP(FindMatches, APlainTextIsFoundWhereANaiveSearchFindsIt, ()) {
  const auto letters =
      rc::gen::element('a', 'A', 'b', '_', ' ', '\r', '\n', '\xe4', '\xc4', '\x80');
  const auto text = *rc::gen::container<std::string>(letters);
  const auto wanted = *rc::gen::nonEmpty(rc::gen::container<std::string>(letters));
  const FindChoices choices{.matchCase = *rc::gen::arbitrary<bool>(),
                            .wholeWord = *rc::gen::arbitrary<bool>()};
  RC_ASSERT(MatchesOf(ShownText(wanted), choices, text) == NaiveMatches(wanted, choices, text));
}

RC_GTEST_PROP(FindMatches, AnEscapedTextIsTheSameExpression, ()) {
  const auto letters = rc::gen::element('a', 'A', 'b', '_', ' ', '.', '(', '\\', '\xe4', '\xc4');
  const auto text = *rc::gen::container<std::string>(letters);
  const auto wanted = *rc::gen::nonEmpty(rc::gen::container<std::string>(letters));
  FindChoices choices{.matchCase = *rc::gen::arbitrary<bool>(),
                      .wholeWord = *rc::gen::arbitrary<bool>()};
  const auto plain = MatchesOf(ShownText(wanted), choices, text);
  choices.regularExpression = true;
  RC_ASSERT(MatchesOf(QRegularExpression::escape(ShownText(wanted)), choices, text) == plain);
}

TEST(FindMatches, CaseIsFoldedTheSameWayForEveryByteInBothKindsOfSearch) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  for (const char byte : all) {
    const QString one = ShownText({&byte, 1});
    EXPECT_EQ(MatchesOf(one, kPlain, all),
              MatchesOf(QRegularExpression::escape(one), kExpression, all))
        << int{static_cast<unsigned char>(byte)};
  }
}

TEST(FindMatches, OneUnitOfUnicodeStandsForEachByte) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  for (int i = 0; i < 12; ++i) all += all;  // several pieces
  SearchedText text(all);
  EXPECT_EQ(text.Unicode(), ShownText(all));
  EXPECT_EQ(text.Unicode().size(), std::ssize(all));
}

TEST(FindMatches, NothingAndWhatNoDocumentCanHoldAreFoundNowhere) {
  EXPECT_TRUE(MatchesOf("", kPlain, "text").empty());
  EXPECT_TRUE(MatchesOf("", kExpression, "text").empty());
  EXPECT_TRUE(MatchesOf(QString::fromUtf8("\u4e2d"), kPlain, "text ?").empty());
}

TEST(FindMatches, ALongTextIsSearchedPieceByPiece) {
  std::string text(2'500'000, ' ');
  for (const std::size_t at : {999'998UL, 1'999'999UL, 2'499'997UL}) text.replace(at, 3, "abc");
  const std::vector<TextMatch> all = {{999'998, 3}, {1'999'999, 3}, {2'499'997, 3}};
  EXPECT_EQ(MatchesOf("ABC", kPlain, text), all);
  EXPECT_EQ(MatchesOf("ABC", kExpression, text), all);
  EXPECT_EQ(MatchesOf("b", kCase, text, SearchArea{999'999, 2'000'001}),
            (std::vector<TextMatch>{{999'999, 1}, {2'000'000, 1}}));
  EXPECT_EQ(MatchesOf("abc", kPlain, text, SearchArea{999'999, 2'000'001}),
            std::vector<TextMatch>{})
      << "one begins before the area and one ends behind it";
}

// --- Regular expressions

TEST(FindMatches, LinesEndAtEveryKindOfBreak) {
  const std::string lines = "one\r\ntwo\nthree\rfour";
  EXPECT_EQ(Expressed("^.", lines), "[o]ne\r\n[t]wo\n[t]hree\r[f]our");
  EXPECT_EQ(Expressed(".$", lines), "on[e]\r\ntw[o]\nthre[e]\rfou[r]");
  EXPECT_EQ(Expressed("^", lines), "[]one\r\n[]two\n[]three\r[]four");
  EXPECT_EQ(Expressed("$", lines), "one[]\r\ntwo[]\nthree[]\rfour[]");
  EXPECT_EQ(Expressed("\\R", lines), "one[\r\n]two[\n]three[\r]four");
  EXPECT_EQ(Expressed(".+", lines), "[one]\r\n[two]\n[three]\r[four]");
}

TEST(FindMatches, NothingBeginsInsideABreakUnlessItNamesIt) {
  EXPECT_EQ(Expressed("^$", "a\r\n\r\nb"), "a\r\n[]\r\nb");
  EXPECT_EQ(Expressed("\\n", "a\r\nb"), "a\r[\n]b");
  EXPECT_EQ(Expressed("\\s", "a\r\nb"), "a[\r][\n]b") << "both are blanks";
  EXPECT_EQ(Expressed("[^a]", "a\r\nb"), "a[\r][\n][b]");
}

TEST(FindMatches, EmptyMatchesComeToAnEnd) {
  EXPECT_EQ(Expressed("a*", "baac"), "[]b[aa][]c[]");
  EXPECT_EQ(Expressed("x?", ""), "[]");
  EXPECT_EQ(Expressed("(?=b)|a", "ab"), "[a][]b");
}

TEST(FindMatches, AnExpressionStaysInOnePiece) {
  EXPECT_EQ(Expressed("a|b", "xaxb"), "x[a]x[b]");
  EXPECT_EQ(Expressed("(?x) a  # a comment", "xa"), "x[a]");
  EXPECT_EQ(Expressed("\\Qa.b", "aab a.b"), "aab [a.b]");
  EXPECT_EQ(Expressed("(a)\\1", "aaba"), "[aa]ba");
  EXPECT_EQ(Expressed("(?<=a)b", "bab"), "ba[b]");
  EXPECT_EQ(Expressed("\\((?:[^()]|(?R))*\\)", "(())"), "(())") << "a problem, as below";
  EXPECT_EQ(Expressed("(\\((?:[^()]|(?1))*\\))", "x(())("), "x[(())](");
}

TEST(FindMatches, LettersAreThoseOfUnicode) {
  EXPECT_EQ(Expressed("\\w+", "a\xe4 b\x8a"), "[a\xe4] [b\x8a]");
  EXPECT_EQ(Expressed("\xc3\xa4", "\xc4\xe4"), "[\xc4][\xe4]");
}

TEST(FindMatches, AWholeWordIsOneForAnExpressionToo) {
  const FindChoices choices{.wholeWord = true, .regularExpression = true};
  EXPECT_EQ(Bracketed("a.|b", choices,
                      "ab abc xab b \xe4"
                      "b"),
            "[ab] abc xab [b] \xe4"
            "b");
}

TEST(FindMatches, AMatchThatBeginsBehindAWindowIsFoundAsWell) {
  for (const std::size_t blanks : {0UL, 1UL, 63UL, 64UL, 65UL, 4095UL, 4161UL, 4162UL, 9000UL}) {
    const std::string before(blanks, ' ');
    EXPECT_EQ(Expressed("a\\d+", before + "a12\r\n"), before + "[a12]\r\n") << blanks;
  }
}

TEST(FindMatches, AnExpressionThatIsNotValidSaysWhy) {
  EXPECT_EQ(ProblemOf("a("),
            "The expression is not valid: missing closing parenthesis (at "
            "character 2).");
  EXPECT_EQ(ProblemOf("a)(b"),
            "The expression is not valid: unmatched closing parenthesis (at character 1).");
  EXPECT_EQ(ProblemOf("a\\"),
            "The expression is not valid: \\ at end of pattern (at character 2).");
  EXPECT_EQ(ProblemOf("(?R)"),
            "The expression is not valid: it can call a group of its own, as "
            "(?1), but not itself.");
  EXPECT_EQ(ProblemOf("a(b)"), "");
  EXPECT_TRUE(MatchesOf("a(", kExpression, "a(").empty());
}

TEST(FindMatches, AnExpressionThatTriesTooMuchIsGivenUp) {
  const std::string text = std::string(60, 'a') + "!b" + std::string(5'000'000, 'a');
  for (const char* wanted : {"(a+)+b", "(a|a)*b", "(a*)*$b", "(?s)a.*foo", "(?:a+){2,}\\d"}) {
    QElapsedTimer clock;
    clock.start();
    try {
      EXPECT_TRUE(MatchesOf(wanted, kExpression, text).empty()) << wanted;
    } catch (const RuntimeError& error) {
      EXPECT_STREQ(error.what(), "The expression is too complex for this text.");
    }
    EXPECT_LT(clock.elapsed(), 10'000) << wanted;
  }
  EXPECT_THROW(MatchesOf("(a+)+\\d", kExpression, text + "1"), RuntimeError);
}

TEST(FindMatches, TheGroupsOfAMatchAreKnown) {
  const SearchPattern pattern("(a)(x)?(b+)", kExpression);
  SearchedText text("--abb");
  const auto match = pattern.FirstIn(text, 0, 5);
  ASSERT_TRUE(match.has_value());
  EXPECT_EQ(pattern.GroupsOf(text, *match),
            (std::vector<TextMatch>{{2, 3}, {2, 1}, {0, 0}, {3, 2}}));
}

// --- Slices

TEST(FindMatches, AScanGivesUpBehindAsManyAsAreWanted) {
  const std::string bytes(100, 'a');
  const SearchPattern pattern("a", kPlain);
  SearchedText text(bytes);
  for (const std::size_t most : {99UL, 100UL}) {
    MatchScan scan(pattern, text, {0, 100}, most);
    EXPECT_TRUE(scan.Work(QDeadlineTimer(QDeadlineTimer::Forever)));
    EXPECT_EQ(scan.TooMany(), most == 99);
    EXPECT_EQ(scan.Matches().size(), 100U);
  }
}

TEST(FindMatches, AScanGoesOnWhereItsTimeWasOver) {
  const std::string bytes = "a b a b a";
  for (const FindChoices& choices : {kPlain, kExpression}) {
    const SearchPattern pattern("a", choices);
    SearchedText text(bytes);
    MatchScan scan(pattern, text, {0, text.Length()}, kAll);
    EXPECT_FALSE(scan.Work(QDeadlineTimer(0)));
    EXPECT_TRUE(scan.Matches().empty());
    EXPECT_TRUE(scan.Work(QDeadlineTimer(QDeadlineTimer::Forever)));
    EXPECT_EQ(scan.Matches().size(), 3U);
  }
}

}  // namespace
}  // namespace tessel::test
