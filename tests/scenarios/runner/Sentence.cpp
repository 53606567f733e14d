#include "Sentence.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Keys.h"

namespace scenario {
namespace {

bool IsWord(std::string_view text) {
  Cursor cursor(text);
  const auto word = cursor.Word();
  return word && *word == text;
}

Json Parsed(std::string_view json) { return json.empty() ? Json::object() : Json::parse(json); }

// ---- Reading: each finds its member in the line, or leaves it where it is.

std::optional<Json> ReadWord(Cursor& rest) {
  if (auto word = rest.Word()) return Json(*word);
  return rest.Value(Json::value_t::string);
}

Json ReadTexts(Cursor& rest) {
  Json texts = Json::array();
  while (auto text = rest.Value(Json::value_t::string)) texts.push_back(std::move(*text));
  return texts;
}

std::optional<Json> ReadControl(Cursor& rest) {
  const auto name = rest.Word();
  if (!name) return std::nullopt;
  Json members = {{"control", *name}};
  if (!rest.Skip("(")) return members;
  const std::string_view line = rest.Rest();
  const auto close = line.find(')');
  if (close == std::string_view::npos) throw std::runtime_error("\"(\" without \")\"");
  members["index"] = Json::parse(line.substr(0, close));
  rest = Cursor(line.substr(close + 1));
  return members;
}

std::optional<Json> ReadKeys(Cursor& rest) {
  const std::string_view line = rest.Rest();
  const auto length = std::min(line.find(' '), line.size());
  const auto keys = KeysOf(line.substr(0, length));
  if (!keys) return std::nullopt;
  rest = Cursor(line.substr(length));
  Json members = {{"code", keys->code}};
  if (keys->shift != 0) members["shift"] = keys->shift;
  return members;
}

std::optional<Json> Member(const Phrase& phrase, std::optional<Json> value) {
  if (!value) return std::nullopt;
  return Json{{std::string(phrase.member), std::move(*value)}};
}

std::optional<Json> ReadMembers(const Phrase& phrase, Cursor& rest) {
  switch (phrase.says) {
    case Says::kNothing:
      return Member(phrase, Parsed(phrase.fixed));
    case Says::kText:
      return Member(phrase, rest.Value(Json::value_t::string));
    case Says::kWord:
      return Member(phrase, ReadWord(rest));
    case Says::kValue:
      return Member(phrase, rest.Value());
    case Says::kTexts:
      return Member(phrase, ReadTexts(rest));
    case Says::kControl:
      return ReadControl(rest);
    case Says::kKeys:
      return ReadKeys(rest);
  }
  return std::nullopt;
}

std::optional<Json> ReadPhrase(const Phrase& phrase, Cursor& rest) {
  const Cursor before = rest;
  if (rest.Skip(phrase.words)) {
    if (auto members = ReadMembers(phrase, rest)) return members;
  }
  rest = before;
  return std::nullopt;
}

Json ReadOtherMember(Cursor& rest) {
  const std::string from(rest.Rest());
  if (auto braces = rest.Value(Json::value_t::object)) return *braces;
  if (const auto name = rest.Word()) {
    if (auto value = rest.Value()) return {{*name, std::move(*value)}};
  }
  throw std::runtime_error("what does \"" + from + "\" mean?");
}

Json ReadNext(const Sentence& sentence, const Json& object, Cursor& rest) {
  if (rest.Rest().starts_with('{')) return ReadOtherMember(rest);
  for (const Phrase& phrase : sentence.phrases) {
    if (object.contains(phrase.member)) continue;
    if (auto members = ReadPhrase(phrase, rest)) return *members;
  }
  return ReadOtherMember(rest);
}

// ---- Writing: each takes its members out of the object, or says nothing.

using MaybeText = std::optional<std::string>;

MaybeText WriteTexts(const Json& value) {
  if (!value.is_array()) return std::nullopt;
  std::string text;
  for (const Json& element : value) {
    if (!element.is_string()) return std::nullopt;
    text += (text.empty() ? "" : " ") + TextOf(element);
  }
  return text;
}

MaybeText WriteControl(Json& object, const Json& control) {
  if (!control.is_string() || !IsWord(control.get_ref<const std::string&>())) return std::nullopt;
  auto text = control.get<std::string>();
  if (const auto index = object.find("index");
      index != object.end() && index->is_number_integer()) {
    text += "(" + index->dump() + ")";
    object.erase("index");
  }
  return text;
}

MaybeText WriteKeys(Json& object, const Json& code) {
  const Json shift = object.value("shift", Json(0));
  if (!code.is_number_integer() || !shift.is_number_integer()) return std::nullopt;
  auto name = NameOf({code.get<int>(), shift.get<int>()});
  if (name) object.erase("shift");
  return name;
}

MaybeText WriteMember(const Phrase& phrase, Json& object, const Json& value) {
  switch (phrase.says) {
    case Says::kNothing:
      return value == Parsed(phrase.fixed) ? MaybeText("") : std::nullopt;
    case Says::kText:
      return value.is_string() ? MaybeText(TextOf(value)) : std::nullopt;
    case Says::kWord:
      if (!value.is_string()) return std::nullopt;
      return IsWord(value.get_ref<const std::string&>()) ? value.get<std::string>() : TextOf(value);
    case Says::kValue:
      return TextOf(value);
    case Says::kTexts:
      return WriteTexts(value);
    case Says::kControl:
      return WriteControl(object, value);
    case Says::kKeys:
      return WriteKeys(object, value);
  }
  return std::nullopt;
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

MaybeText WritePhrase(const Phrase& phrase, Json& object) {
  const std::string name(phrase.member);
  if (!object.contains(name)) return std::nullopt;
  const Json value = object[name];
  const MaybeText said = WriteMember(phrase, object, value);
  if (!said) return std::nullopt;
  object.erase(name);
  const bool both = !phrase.words.empty() && !said->empty();
  return std::string(phrase.words) + (both ? " " : "") + *said;
}

std::string WriteOtherMember(const std::string& name, const Json& value) {
  if (IsWord(name)) return name + " " + TextOf(value);
  return TextOf(Json{{name, value}});
}

bool TakeImplied(const Sentence& sentence, Json& object) {
  const Json implied = Parsed(sentence.implied);
  for (const auto& [name, value] : implied.items()) {
    const auto it = object.find(name);
    if (it == object.end() || *it != value) return false;
    object.erase(it);
  }
  return true;
}

bool ReadsAs(const Sentence& sentence, const std::string& text, const Json& object) {
  try {
    Cursor rest(text);
    return SameValue(ReadSentence(sentence, rest), object);
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

Json ReadSentence(const Sentence& sentence, Cursor& rest) {
  Json object = Parsed(sentence.implied);
  while (!rest.AtEnd()) {
    const Json members = ReadNext(sentence, object, rest);
    for (const auto& [name, value] : members.items()) {
      if (object.contains(name)) throw std::runtime_error("\"" + name + "\" is said twice");
      object[name] = value;
    }
  }
  return object;
}

std::optional<std::string> WriteSentence(const Sentence& sentence, const Json& object) {
  Json left = object;
  if (!object.is_object() || !TakeImplied(sentence, left)) return std::nullopt;
  std::vector<std::string> parts;
  for (const Phrase& phrase : sentence.phrases) {
    if (auto text = WritePhrase(phrase, left)) parts.push_back(std::move(*text));
  }
  for (const auto& [name, value] : left.items()) parts.push_back(WriteOtherMember(name, value));
  std::string text = Joined(parts, sentence.between);
  if (!ReadsAs(sentence, text, object)) return std::nullopt;
  return text;
}

std::optional<std::string> WriteInBraces(const Sentence& sentence, const Json& object) {
  Json left = object;
  if (!object.is_object() || !TakeImplied(sentence, left)) return std::nullopt;
  return TextOf(left);
}

}  // namespace scenario
