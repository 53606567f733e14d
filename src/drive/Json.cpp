#include "drive/Json.h"

#include <cmath>
#include <cstdint>

#include "drive/Refusal.h"

namespace tessel::drive {
namespace {

Refusal Unfit(std::string_view what, const char* reason) {
  return Refusal("\"" + std::string(what) + "\" " + reason);
}

}  // namespace

Json FromBytes(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      utf8 += c;
    } else {
      utf8 += static_cast<char>(0xC0 | (byte >> 6));
      utf8 += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return utf8;
}

Json FromBytes(const std::vector<std::string>& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(FromBytes(text));
  return list;
}

Json FromTwips(double twips) {
  const double whole = std::nearbyint(twips);
  return whole == twips ? Json(static_cast<std::int64_t>(whole)) : Json(twips);
}

std::string ToBytes(const Json& value, std::string_view what) {
  if (!value.is_string()) throw Unfit(what, "must be a text");
  const auto& utf8 = value.get_ref<const std::string&>();
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      bytes += utf8[i];
    } else if (lead <= 0xC3) {  // two bytes, up to U+00FF; the parser has checked the second
      const auto tail = static_cast<unsigned char>(utf8[++i]);
      bytes += static_cast<char>(((lead & 0x03) << 6) | (tail & 0x3F));
    } else {
      throw Unfit(what, "holds a code point above U+00FF");
    }
  }
  return bytes;
}

Json ParseCommand(const std::string& line) {
  Json command;
  try {
    command = Json::parse(line);
  } catch (const Json::exception&) {
    throw Refusal("not JSON");
  }
  if (!command.is_object()) throw Refusal("not a JSON object");
  return command;
}

}  // namespace tessel::drive
