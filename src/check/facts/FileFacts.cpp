#include "check/facts/FileFacts.h"

#include "check/facts/CommandReader.h"
#include "language/Reader.h"
#include "language/StatementFinder.h"

namespace tessel::check {

using language::Form;
using language::Keyword;
using language::Role;
using language::Token;
using language::TokenKind;

/// Which words of a statement are its own; those behind them are commands in the form kNames.
struct OwnWords {
  std::uint32_t count;
  bool thenAnyNumber;  ///< flags and numbers may follow them
};

namespace {

constexpr std::uint32_t kAllWords = 0xFFFFFFFFU;

OwnWords OwnWordsOf(Keyword keyword, Role role) {
  const bool uses = role == Role::kUses;
  switch (keyword) {
    case Keyword::kState:
      return {1, false};
    case Keyword::kAction:
      return uses ? OwnWords{1, false} : OwnWords{6, false};
    case Keyword::kMove:
      return uses ? OwnWords{1, true} : OwnWords{3, true};
    case Keyword::kAi:
      return uses ? OwnWords{1, false} : OwnWords{3, true};
    case Keyword::kActor:
      return {4, true};
    case Keyword::kUserActor:
      return {5, true};
    case Keyword::kGameStartup:
      return {kAllWords, false};
    case Keyword::kMusic:
      return {1, false};
    default:
      return {8, false};
  }
}

/// Whether a word of a statement, counted from 0, stands for something with a name.
bool IsUse(Keyword keyword, Role role, std::uint32_t index) {
  switch (keyword) {
    case Keyword::kDefine:
      return index == 1;
    case Keyword::kDefineSound:
      return index != 1 && index < 7;
    case Keyword::kGameStartup:
    case Keyword::kActor:
    case Keyword::kUserActor:
      return true;
    case Keyword::kAction:
    case Keyword::kMove:
    case Keyword::kAi:
    case Keyword::kState:
      return index > 0 || role == Role::kUses;
    default:
      return false;
  }
}

bool IsFreeText(Keyword keyword) {
  return keyword == Keyword::kDefineQuote || keyword == Keyword::kDefineVolumeName ||
         keyword == Keyword::kDefineSkillName || keyword == Keyword::kDefineLevelName;
}

}  // namespace

/// Reads a text from front to back into the facts.
class FactReader {
 public:
  FactReader(FileFacts& facts, const CommandTable& commands)
      : facts_(facts),
        text_(facts.source_.text),
        finder_(text_),
        commands_(text_, commands, facts.uses_, facts.wordFaults_) {}

  void Read() {
    language::Reader reader(text_);
    for (Token token = reader.Next(); token.kind != TokenKind::kEnd; token = reader.Next()) {
      Take(token);
    }
    End();
    commands_.Interrupt();
    open_.Finish(std::ssize(text_));
    for (const language::Block& block : open_.All()) {
      if (!block.terminated) facts_.openBlocks_.push_back(block);
    }
  }

 private:
  void Take(const Token& token) {
    if (token.lineBreaks > 0) LineEnds();
    const auto keyword = finder_.Take(token);
    if (keyword) return Begin(*keyword, Stretch(token.range));
    switch (token.kind) {
      case TokenKind::kWord:
      case TokenKind::kOpenBrace:
      case TokenKind::kCloseBrace:
        TakeWord(Stretch(token.range));
        break;
      case TokenKind::kBlockComment:
        if (!token.terminated) facts_.openComment_ = Stretch(token.range);
        break;
      default:
        break;
    }
  }

  void LineEnds() {
    commands_.LineEnds();
    if (isIn_ && language::GrammarOf(keyword_).form != Form::kList) End();
  }

  void Begin(Keyword keyword, Stretch word) {
    End();
    commands_.Interrupt();
    const language::Mark mark = {keyword, static_cast<Position>(word.begin)};
    statement_.role = open_.Enter(mark);
    if (statement_.role == Role::kClosesNothing) facts_.strayClosers_.push_back(mark);
    if (language::GrammarOf(keyword).form == Form::kAlone) return;
    isIn_ = true;
    keyword_ = keyword;
    own_ = OwnWordsOf(keyword, statement_.role);
    statement_.range = word;
    statement_.firstWord = static_cast<std::uint32_t>(facts_.words_.size());
    statement_.words = 0;
  }

  void End() {
    if (!isIn_) return;
    isIn_ = false;
    if (keyword_ == Keyword::kState && statement_.role == Role::kUses) NoteStateUse();
    facts_.statements_[static_cast<std::size_t>(keyword_)].push_back(statement_);
  }

  void NoteStateUse() {
    const language::Block* around = open_.Outermost();
    if (around == nullptr || around->opener.keyword != Keyword::kState) return;
    facts_.stateUses_.push_back({statement_.range.begin,
                                 static_cast<std::uint32_t>(around->opener.begin),
                                 facts_.Word(statement_, 0)});
  }

  void TakeWord(Stretch word) {
    if (facts_.Text(word) == "*/" && !(isIn_ && IsFreeText(keyword_))) {
      facts_.strayCommentEnds_.push_back(word);
    }
    if (!isIn_) return commands_.Take(word);
    if (statement_.words == own_.count && language::GrammarOf(keyword_).form == Form::kNames) {
      End();
      if (own_.thenAnyNumber) commands_.BeginAnyNumber();
      return commands_.Take(word);
    }
    statement_.range.end = word.end;
    if (statement_.words == own_.count) return;
    if (IsUse(keyword_, statement_.role, statement_.words) && !LooksLikeNumber(facts_.Text(word))) {
      facts_.uses_.push_back(word);
    }
    facts_.words_.push_back(word);
    ++statement_.words;
  }

  FileFacts& facts_;
  std::string_view text_;
  language::StatementFinder finder_;
  CommandReader commands_;
  language::OpenBlocks open_;
  bool isIn_ = false;  // in a statement, which the next three tell of
  Keyword keyword_ = Keyword::kDefine;
  OwnWords own_ = {};
  Statement statement_;
};

FileFacts::FileFacts(const Source& source, const CommandTable& commands) : source_(source) {
  FactReader(*this, commands).Read();
}

const LineIndex& FileFacts::Lines() const {
  if (!lines_) lines_ = std::make_unique<LineIndex>(Text());
  return *lines_;
}

}  // namespace tessel::check
