// The colours of a text as tokens.
#include <array>

#include "colouring/ColorWords.h"
#include "lsp/features/Features.h"

namespace tessel::lsp {
namespace {

struct TokenKind {
  Colour colour;
  const char* name;
};
constexpr std::array<TokenKind, 3> kTokenKinds = {
    {{kKeywordRed, "keyword"}, {kCommentGreen, "comment"}, {kLevelNameBlue, "macro"}}};

/// The number of the kind of each colour of the palette; −1 for plain text.
std::array<int, 8> KindsByPalette() {
  std::array<int, 8> kinds{};
  kinds.fill(-1);
  const auto palette = LiveColours::Palette();
  for (std::size_t i = 0; i < palette.size(); ++i) {
    for (std::size_t kind = 0; kind < kTokenKinds.size(); ++kind) {
      if (kTokenKinds[kind].colour == palette[i]) kinds.at(i) = static_cast<int>(kind);
    }
  }
  return kinds;
}

/// Writes tokens one behind the other, each by its distance from the one before.
class TokenText {
 public:
  TokenText(const Document& document, PositionEncoding encoding)
      : document_(document), encoding_(encoding) {}

  void Add(std::size_t line, language::Range range, int kind) {
    const std::int64_t column =
        UnitsIn(document_, {document_.Lines().BeginOf(line), range.begin}, encoding_);
    const auto number = static_cast<std::int64_t>(line);
    Append(number - line_);
    Append(number == line_ ? column - column_ : column);
    Append(UnitsIn(document_, range, encoding_));
    Append(kind);
    Append(0);
    line_ = number;
    column_ = column;
  }
  std::string Take() && { return std::move(out_ += "]}"); }

 private:
  void Append(std::int64_t number) {
    if (out_.back() != '[') out_ += ',';
    AppendJson(out_, number);
  }

  const Document& document_;
  PositionEncoding encoding_;
  std::string out_ = "{\"data\":[";
  std::int64_t line_ = 0, column_ = 0;
};

/// Adds the runs of one colour in a line.
void AddLine(const std::string& colours, Position from, std::size_t line, language::Range range,
             TokenText& tokens) {
  static const std::array<int, 8> kinds = KindsByPalette();
  const auto colourAt = [&](Position at) { return colours[static_cast<std::size_t>(at - from)]; };
  for (Position at = range.begin; at < range.end;) {
    const char colour = colourAt(at);
    Position end = at + 1;
    while (end < range.end && colourAt(end) == colour) ++end;
    const int kind = kinds.at(static_cast<std::size_t>(colour));
    if (kind >= 0) tokens.Add(line, {at, end}, kind);
    at = end;
  }
}

std::string TokensOf(const Session& session, const Document& document, language::Range range) {
  const LineIndex& lines = document.Lines();
  const std::size_t first = lines.LineOf(range.begin), last = lines.LineOf(range.end);
  const Position from = lines.BeginOf(first);
  const Position to = lines.LineIn(document.Bytes(), last).end;
  const std::string colours = document.Colours().ColoursOf(document.Bytes(), from, to);
  TokenText tokens(document, session.client.encoding);
  for (std::size_t line = first; line <= last; ++line) {
    AddLine(colours, from, line, lines.LineIn(document.Bytes(), line), tokens);
  }
  return std::move(tokens).Take();
}

}  // namespace

Json SemanticTokenKinds() {
  Json names = Json::array();
  for (const TokenKind& kind : kTokenKinds) names.push_back(kind.name);
  return names;
}

std::string SemanticTokens(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  return TokensOf(session, document, {0, std::ssize(document.Bytes())});
}

std::string SemanticTokensInRange(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  return TokensOf(session, document,
                  RangeFrom(Member(params, "range"), document, session.client.encoding));
}

}  // namespace tessel::lsp
