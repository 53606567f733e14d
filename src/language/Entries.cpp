#include "language/Entries.h"

#include "language/Definitions.h"
#include "language/Statement.h"

namespace tessel::language {
namespace {

/// Hands out the words of a statement; those that are missing are empty and stand where the last
/// one ends.
class Fields {
 public:
  explicit Fields(const Statement& statement)
      : words_(statement.words), end_(statement.keywordRange.end) {}

  Range Next() {
    const Range field = next_ < words_.size() ? words_[next_++] : Range{end_, end_};
    end_ = field.end;
    return field;
  }
  /// All that is left, from word to word.
  Range Rest() {
    Range rest = Next();
    if (next_ < words_.size()) rest.end = words_.back().end;
    next_ = words_.size();
    return rest;
  }

 private:
  const std::vector<Range>& words_;
  std::size_t next_ = 0;
  Position end_;
};

NumberedText ReadNumberedText(const Script& script, const Statement& statement) {
  Fields fields(statement);
  NumberedText entry;
  entry.keyword = statement.keyword;
  entry.range = statement.range;
  entry.number = fields.Next();
  entry.text = fields.Rest();
  entry.value = NumberOf(script.Text(entry.number));
  return entry;
}

Sound ReadSound(const Script& /*script*/, const Statement& statement) {
  Fields fields(statement);
  Sound sound;
  sound.range = statement.range;
  sound.name = fields.Next();
  sound.file = fields.Next();
  for (Range& number : sound.numbers) number = fields.Next();
  sound.rest = fields.Rest();
  return sound;
}

List ReadList(const Script& /*script*/, const Statement& statement) {
  List list;
  list.keyword = statement.keyword;
  list.range = statement.range;
  list.number = statement.name;
  list.entries = statement.words;
  if (!list.number.IsEmpty()) list.entries.erase(list.entries.begin());
  return list;
}

template <class Read>
auto CollectEntries(const Script& script, Keyword keyword, Read read) {
  std::vector<decltype(read(script, Statement()))> entries;
  for (const Mark mark : script.Marks()) {
    if (mark.keyword == keyword) entries.push_back(read(script, ReadStatement(script, mark)));
  }
  return entries;
}

}  // namespace

std::vector<NumberedText> NumberedTexts(const Script& script, Keyword keyword) {
  return CollectEntries(script, keyword, ReadNumberedText);
}

std::vector<Sound> Sounds(const Script& script) {
  return CollectEntries(script, Keyword::kDefineSound, ReadSound);
}

std::vector<List> Lists(const Script& script, Keyword keyword) {
  return CollectEntries(script, keyword, ReadList);
}

}  // namespace tessel::language
