#include "language/Reader.h"

namespace tessel::language {

Position LineBreaksIn(std::string_view text) {
  Position breaks = 0;
  bool afterCr = false;
  for (const char c : text) {
    breaks += static_cast<Position>(c == '\r' || (c == '\n' && !afterCr));
    afterCr = c == '\r';
  }
  return breaks;
}

Token Reader::FinishBlockComment(const char* begin, const char* closesFrom) {
  const std::string_view rest(closesFrom, static_cast<std::size_t>(end_ - closesFrom));
  const std::size_t close = rest.find("*/");
  at_ = close == rest.npos ? end_ : closesFrom + close + 2;
  insideComment_ = false;
  Token token = Made(TokenKind::kBlockComment, begin);
  token.terminated = close != rest.npos;
  token.lineBreaks = LineBreaksIn({begin, static_cast<std::size_t>(at_ - begin)});
  return token;
}

}  // namespace tessel::language
