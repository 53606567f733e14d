#include "ReplyLines.h"

#include <algorithm>
#include <cctype>
#include <exception>
#include <optional>
#include <stdexcept>
#include <utility>

#include "ReplyPlaces.h"

namespace scenario {
namespace {

using Pointer = Json::json_pointer;

const std::string kGap = "...";
const std::string kAny = "~";
const std::string kAnyWord = "any";

Pointer PathOf(const Place& place) { return Pointer(std::string(place.path)); }

Json At(const Place& place, Json value) {
  if (place.path.empty()) return value;
  Json object = Json::object();
  object[PathOf(place)] = std::move(value);
  return object;
}

// ---- Lists of lists: as objects whose members have names.

Json WithoutNames(const Place& place, const Json& object) {
  if (place.names.empty() || !object.is_object()) return object;
  Json list = Json::array();
  for (const std::string_view name : place.names) list.push_back(object.at(std::string(name)));
  return list;
}

Json WithNames(const Place& place, const Json& element) {
  if (!element.is_array() || element.size() != place.names.size()) return element;
  Json object = Json::object();
  for (std::size_t i = 0; i < element.size(); ++i) object[std::string(place.names[i])] = element[i];
  return object;
}

// ---- Reading.

bool BeginsWithPhrase(const Sentence& sentence, const Cursor& line) {
  return std::ranges::any_of(sentence.phrases,
                             [&](const Phrase& phrase) { return Cursor(line).Skip(phrase.words); });
}

bool BeginsWithCapital(const Cursor& line) {
  return std::isupper(static_cast<unsigned char>(line.Rest().front())) != 0;
}

/// Moves behind the words that the sentence begins with.
bool Begins(const Sentence& sentence, Cursor& line) {
  if (!sentence.words.empty()) return line.Skip(sentence.words);
  return sentence.phrases.empty() ? BeginsWithCapital(line) : BeginsWithPhrase(sentence, line);
}

struct Said {
  const Place* place;
  std::optional<int> number;
  Json value;
};

Json ReadElement(const Place& place, const Sentence& sentence, Cursor& rest) {
  if (rest.Rest() == kGap) return kGap;
  if (rest.Rest() == kAnyWord) return kAny;
  return WithoutNames(place, ReadSentence(sentence, rest));
}

std::optional<Said> ReadAt(const Place& place, std::string_view line) {
  if (place.IsList() && line == place.none) return Said{&place, {}, Json::array()};
  for (const Sentence& sentence : place.lines) {
    Cursor rest(line);
    if (!Begins(sentence, rest)) continue;
    std::optional<int> number;
    if (place.first != kUnnumbered) number = rest.Number();
    rest.Skip(place.link);
    if (!place.IsList()) return Said{&place, {}, ReadSentence(sentence, rest)};
    return Said{&place, number, Json::array({ReadElement(place, sentence, rest)})};
  }
  return std::nullopt;
}

Said ReadLine(std::string_view line) {
  for (const Place& place : ReplyPlaces()) {
    if (auto said = ReadAt(place, line)) return *said;
  }
  throw std::runtime_error("what does \"" + std::string(line) + "\" mean?");
}

bool Contradicts(const Json& one, const Json& other) {
  for (const auto& [name, value] : other.items()) {
    const auto it = one.find(name);
    if (it == one.end()) continue;
    if (!it->is_object() || !value.is_object() || Contradicts(*it, value)) return true;
  }
  return false;
}

void Merge(Json& into, const Json& other) {
  for (const auto& [name, value] : other.items()) {
    if (into.contains(name)) {
      Merge(into[name], value);
    } else {
      into[name] = value;
    }
  }
}

/// The list in `object` that the next element belongs to.
Json* ListOf(const Said& said, Json& object) {
  const Pointer path = PathOf(*said.place);
  if (!said.place->IsList() || said.value.empty() || !object.contains(path)) return nullptr;
  Json& list = object[path];
  if (said.number == said.place->first || list.empty()) return nullptr;
  return &list;
}

void CheckNumber(const Said& said, const Json* list) {
  if (!said.number) return;
  const int next = said.place->first + (list == nullptr ? 0 : static_cast<int>(list->size()));
  if (*said.number != next) {
    throw std::runtime_error("number " + std::to_string(next) + " comes next");
  }
}

// ---- Writing.

using MaybeLine = std::optional<std::string>;

std::string Beginning(const Place& place, const Sentence& sentence, std::size_t at) {
  std::string text(sentence.words);
  if (place.first != kUnnumbered) text += " " + std::to_string(place.first + static_cast<int>(at));
  const bool closeUp = place.link.empty() || place.link == ":";
  return text + (closeUp ? "" : " ") + std::string(place.link);
}

std::string Behind(const std::string& beginning, const std::string& rest) {
  return beginning + (beginning.empty() || rest.empty() ? "" : " ") + rest;
}

MaybeLine ElementLine(const Place& place, const Json& element, std::size_t at) {
  if (element == kGap || element == kAny) {
    const Sentence& last = place.lines.back();
    return Behind(Beginning(place, last, at), element == kGap ? kGap : kAnyWord);
  }
  for (const Sentence& sentence : place.lines) {
    if (const auto said = WriteSentence(sentence, WithNames(place, element))) {
      return Behind(Beginning(place, sentence, at), *said);
    }
  }
  return std::nullopt;
}

/// Takes a list out of `left`.
void WriteList(const Place& place, Json& left, std::vector<std::string>& lines) {
  const Json list = left[PathOf(place)];
  if (!list.is_array()) return;
  std::vector<std::string> own;
  if (list.empty()) own.emplace_back(place.none);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const MaybeLine line = ElementLine(place, list[i], i);
    if (!line) return;
    own.push_back(*line);
  }
  lines.insert(lines.end(), own.begin(), own.end());
  const Pointer path = PathOf(place);
  left[path.parent_pointer()].erase(path.back());
}

/// What of an object a sentence says.
Json Part(const Sentence& sentence, const Json& object) {
  if (sentence.phrases.empty() && sentence.implied.empty()) return object;
  Json part = sentence.implied.empty() ? Json::object() : Json::parse(sentence.implied);
  for (const auto& [name, value] : part.items()) {
    if (!object.contains(name) || object[name] != value) return Json::object();
  }
  for (const Phrase& phrase : sentence.phrases) {
    const std::string name(phrase.member);
    if (object.contains(name)) part[name] = object[name];
  }
  return part;
}

/// Takes out of an object in `left` what can be said of it.
void WriteObject(const Place& place, Json& left, std::vector<std::string>& lines) {
  for (const Sentence& sentence : place.lines) {
    Json& object = left[PathOf(place)];
    const Json part = object.is_object() ? Part(sentence, object) : Json();
    const auto said = part.empty() ? MaybeLine() : WriteSentence(sentence, part);
    if (!said) continue;
    lines.push_back(Behind(Beginning(place, sentence, 0), *said));
    for (const auto& member : part.items()) object.erase(member.key());
  }
}

/// What was an object and has lost all members to lines has been said.
Json WithoutEmptied(const Json& left) {
  Json rest = Json::object();
  for (const auto& [name, value] : left.items()) {
    Json inner = value.is_object() ? WithoutEmptied(value) : value;
    if (!value.is_object() || !inner.empty()) rest[name] = std::move(inner);
  }
  return rest;
}

bool ReadAs(const std::vector<std::string>& lines, const Json& expected) {
  try {
    Expectations read;
    for (const std::string& line : lines) read.AddLine(line);
    return read.All().size() == 1 && SameValue(read.All().front(), expected);
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

void Expectations::Add(const Json& object) {
  if (all_.empty() || Contradicts(all_.back(), object)) {
    all_.push_back(object);
  } else {
    Merge(all_.back(), object);
  }
}

void Expectations::AddLine(std::string_view line) {
  if (line.starts_with('{')) return Add(Json::parse(line));
  const Said said = ReadLine(line);
  Json* const list = all_.empty() ? nullptr : ListOf(said, all_.back());
  CheckNumber(said, list);
  if (list == nullptr) {
    Add(At(*said.place, said.value));
  } else {
    list->push_back(said.value.front());
  }
}

std::vector<std::string> LinesOf(const Json& expected) {
  std::vector<std::string> lines;
  Json left = expected;
  for (const Place& place : ReplyPlaces()) {
    if (!left.contains(PathOf(place))) continue;
    (place.IsList() ? WriteList : WriteObject)(place, left, lines);
  }
  if (const Json rest = WithoutEmptied(left); !rest.empty()) lines.push_back(TextOf(rest));
  if (!ReadAs(lines, expected)) return {TextOf(expected)};
  return lines;
}

}  // namespace scenario
