// The tokens of a CON text.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "language/Range.h"

namespace tessel::language {

enum class TokenKind : std::uint8_t {
  kEnd,           ///< there is nothing more
  kWord,          ///< a keyword, name, number, file name: whatever blanks or the others end
  kOpenBrace,     ///< one "{"
  kCloseBrace,    ///< one "}"
  kLineBreak,     ///< CR LF, LF or CR
  kLineComment,   ///< "//" and what follows, up to the line break
  kBlockComment,  ///< "/*" up to and with the next "*/", or the end of what is read
};

struct Token {
  TokenKind kind = TokenKind::kEnd;
  bool terminated = true;   ///< false for a block comment without its "*/"
  Position lineBreaks = 0;  ///< those in it: 1 for kLineBreak, any number for kBlockComment
  Range range;
};

/// Reads text[from, to) token by token. Any bytes can be read: blanks, tabs and line breaks
/// separate, braces stand for themselves, and a comment may begin in the midst of a word. A slash
/// that begins no comment is part of its word. "/*" is closed by the next "*/", which may share its
/// star: "/*/" is a whole comment, as it is for the colouring.
///
/// A reading that starts inside a block comment begins with the rest of that comment.
class Reader {
 public:
  Reader(std::string_view text, Position from, Position to, bool insideComment = false)
      : start_(text.data()), at_(start_ + from), end_(start_ + to), insideComment_(insideComment) {}
  explicit Reader(std::string_view text) : Reader(text, 0, std::ssize(text)) {}

  /// Passes over all words, braces and blanks that stand in front of the next comment or line
  /// break.
  void SkipWords() {
    if (insideComment_) return;
    const char* at = at_;
    for (; at != end_ && ClassOf(*at) != Class::kBreak; ++at) {
      if (*at == '/' && (OpensComment(at, '/') || OpensComment(at, '*'))) break;
    }
    at_ = at;
  }

  Token Next() {
    if (insideComment_) return FinishBlockComment(at_, at_);
    at_ = PastAll(Class::kBlank, at_);
    const char* const begin = at_;
    if (at_ == end_) return Made(TokenKind::kEnd, begin);
    switch (ClassOf(*at_)) {
      case Class::kBreak:
        return LineBreak();
      case Class::kOpen:
        ++at_;
        return Made(TokenKind::kOpenBrace, begin);
      case Class::kClose:
        ++at_;
        return Made(TokenKind::kCloseBrace, begin);
      case Class::kSlash:
        if (OpensComment(at_, '/')) return LineComment();
        if (OpensComment(at_, '*')) return FinishBlockComment(at_, at_ + 1);
        break;
      default:
        break;
    }
    return Word();
  }

 private:
  enum class Class : std::uint8_t { kWord, kSlash, kBlank, kBreak, kOpen, kClose };

  static constexpr std::array<Class, 256> MakeClasses() {
    std::array<Class, 256> classes{};
    classes[' '] = classes['\t'] = Class::kBlank;
    classes['\r'] = classes['\n'] = Class::kBreak;
    classes['/'] = Class::kSlash;
    classes['{'] = Class::kOpen;
    classes['}'] = Class::kClose;
    return classes;
  }
  static const std::array<Class, 256> kClasses;
  static Class ClassOf(char c) { return kClasses[static_cast<unsigned char>(c)]; }

  bool OpensComment(const char* slash, char second) const {
    return end_ - slash > 1 && slash[1] == second;
  }

  Token Made(TokenKind kind, const char* begin) const {
    return {.kind = kind, .range = {begin - start_, at_ - start_}};
  }

  Token LineBreak() {
    const char* const begin = at_++;
    if (*begin == '\r' && at_ != end_ && *at_ == '\n') ++at_;
    Token token = Made(TokenKind::kLineBreak, begin);
    token.lineBreaks = 1;
    return token;
  }

  /// The first place from `at` on that has none of this class.
  const char* PastAll(Class wanted, const char* at) const {
    const char* const end = end_;  // a local one: bytes might be those of the members
    while (at != end && ClassOf(*at) == wanted) ++at;
    return at;
  }

  Token LineComment() {
    const char* const begin = at_;
    const char* at = at_;
    while (at != end_ && ClassOf(*at) != Class::kBreak) ++at;
    at_ = at;
    return Made(TokenKind::kLineComment, begin);
  }

  Token Word() {
    const char* const begin = at_;
    at_ = PastAll(Class::kWord, at_ + 1);
    while (at_ != end_ && *at_ == '/' && !OpensComment(at_, '/') && !OpensComment(at_, '*')) {
      at_ = PastAll(Class::kWord, at_ + 1);
    }
    return Made(TokenKind::kWord, begin);
  }

  Token FinishBlockComment(const char* begin, const char* closesFrom);

  const char* start_;
  const char* at_;
  const char* end_;
  bool insideComment_;
};

inline constexpr std::array<Reader::Class, 256> Reader::kClasses = Reader::MakeClasses();

/// The line breaks in a text; CR LF is one.
Position LineBreaksIn(std::string_view text);

}  // namespace tessel::language
