#include "check/facts/SwitchComments.h"

#include <optional>

#include "text/Text.h"
#include "text/TextSearch.h"

namespace tessel::check {
namespace {

using language::Range;

constexpr std::string_view kMark = "check:";
constexpr std::string_view kBlanks = " \t,";

Stretch StretchOf(Position begin, Position end) { return Stretch(Range{begin, end}); }

/// Takes words, which blanks and commas separate, off the front of a line.
class LineWords {
 public:
  LineWords(std::string_view text, Range line) : text_(text), at_(line.begin), end_(line.end) {}

  std::optional<Range> Next() {
    while (at_ < end_ && kBlanks.find(text_[at_]) != kBlanks.npos) ++at_;
    if (at_ == end_) return std::nullopt;
    const Position begin = at_;
    while (at_ < end_ && kBlanks.find(text_[at_]) == kBlanks.npos) ++at_;
    return Range{begin, at_};
  }

 private:
  std::string_view text_;
  Position at_, end_;
};

/// Where the "//" stands directly in front of the mark. In a block comment it works as well: a text
/// that is out of use says nothing that it could hide.
std::optional<Position> LineCommentBegin(std::string_view text, Position mark) {
  Position at = mark;
  while (at > 0 && (text[at - 1] == ' ' || text[at - 1] == '\t')) --at;
  if (at < 2 || text.substr(static_cast<std::size_t>(at - 2), 2) != "//") return std::nullopt;
  return at - 2;
}

bool IsBlank(std::string_view text) { return text.find_first_not_of(" \t") == text.npos; }

void AddSwitches(const FileFacts& file, Position comment, Position mark,
                 std::vector<Switch>& switches) {
  const std::string_view text = file.Text();
  const Range line = LineAround(text, mark);
  LineWords words(text, {mark + std::ssize(kMark), line.end});
  const auto command = words.Next();
  if (!command) return;
  const std::string_view which = language::Slice(text, *command);
  const bool off = EqualIgnoringAsciiCase(which, "off");
  if (!off && !EqualIgnoringAsciiCase(which, "on")) return;
  const bool alone = IsBlank(language::Slice(text, {line.begin, comment}));
  const Stretch reach = StretchOf(line.begin, alone ? std::ssize(text) : line.end);
  bool named = false;
  while (const auto rule = words.Next()) {
    switches.push_back({off, Stretch(*rule), reach});
    named = true;
  }
  if (!named) switches.push_back({off, {}, reach});
}

}  // namespace

std::vector<Switch> SwitchesIn(const FileFacts& file) {
  const std::string_view text = file.Text();
  const TextPattern pattern(kMark, kFindDefault);
  std::vector<Switch> switches;
  for (Position at = pattern.FindIn(text, 0, std::ssize(text)); at != kNotFound;
       at = pattern.FindIn(text, at + 1, std::ssize(text))) {
    const auto comment = LineCommentBegin(text, at);
    if (comment) AddSwitches(file, *comment, at, switches);
  }
  return switches;
}

}  // namespace tessel::check
