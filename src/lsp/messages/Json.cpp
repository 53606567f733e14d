#include "lsp/messages/Json.h"

#include <array>
#include <charconv>

namespace tessel::lsp {
namespace {

ResponseError WrongMember(const char* name, const char* what) {
  return {ErrorCode::kInvalidParams, "\"" + std::string(name) + "\" " + what + "."};
}

}  // namespace

const Json* OptionalMember(const Json& object, const char* name) {
  if (!object.is_object()) return nullptr;
  const auto found = object.find(name);
  return found == object.end() || found->is_null() ? nullptr : &*found;
}

const Json& Member(const Json& object, const char* name) {
  const Json* member = OptionalMember(object, name);
  if (member == nullptr) throw WrongMember(name, "is missing");
  return *member;
}

const std::string& TextMember(const Json& object, const char* name) {
  const auto* text = Member(object, name).get_ptr<const std::string*>();
  if (text == nullptr) throw WrongMember(name, "is no text");
  return *text;
}

std::int64_t NumberMember(const Json& object, const char* name) {
  const Json& member = Member(object, name);
  constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
  const bool tooLarge = member.is_number_unsigned() && member.get<std::uint64_t>() > kMost;
  if (!member.is_number_integer() || tooLarge) throw WrongMember(name, "is no whole number");
  return member.get<std::int64_t>();
}

bool Says(const Json& object, const char* pointer) {
  const Json* at = &object;
  std::string_view rest = pointer;
  while (at != nullptr && !rest.empty()) {
    const std::string_view name = rest.substr(0, rest.find('/'));
    rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    at = OptionalMember(*at, std::string(name).c_str());
  }
  return at != nullptr && at->is_boolean() && at->get<bool>();
}

std::string Dump(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void AppendJson(std::string& out, std::int64_t number) {
  std::array<char, 20> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

void AppendJson(std::string& out, std::string_view utf8) {
  constexpr std::string_view kHex = "0123456789abcdef";
  out += '"';
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      (out += '\\') += c;
    } else if (byte < 0x20) {
      out += "\\u00";
      out += kHex[byte >> 4U];
      out += kHex[byte & 0xFU];
    } else {
      out += c;
    }
  }
  out += '"';
}

}  // namespace tessel::lsp
