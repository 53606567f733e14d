#include "drive/Fields.h"

#include <cstdint>
#include <limits>

#include "drive/Refusal.h"

namespace tessel::drive {
namespace {

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

}  // namespace

const Json& Fields::At(std::string_view name) const {
  const auto it = command_.find(name);
  if (it == command_.end()) throw Refusal("missing field " + Quoted(name));
  return *it;
}

std::string Fields::Text(std::string_view name) const { return ToBytes(At(name), name); }

std::optional<std::string> Fields::OptionalText(std::string_view name) const {
  if (!Has(name)) return std::nullopt;
  return Text(name);
}

int Fields::Whole(std::string_view name) const {
  const Json& value = At(name);
  constexpr std::int64_t kLeast = std::numeric_limits<int>::min();
  constexpr std::int64_t kMost = std::numeric_limits<int>::max();
  const bool tooBig =
      value.is_number_unsigned() && value.get<std::uint64_t>() > static_cast<std::uint64_t>(kMost);
  if (!value.is_number_integer() || tooBig || value.get<std::int64_t>() < kLeast) {
    throw Refusal(Quoted(name) + " must be a whole number of 32 bits");
  }
  return value.get<int>();
}

std::optional<int> Fields::OptionalWhole(std::string_view name) const {
  if (!Has(name)) return std::nullopt;
  return Whole(name);
}

double Fields::Size(std::string_view name, double limit) const {
  const Json& value = At(name);
  if (!value.is_number()) throw Refusal(Quoted(name) + " must be a number");
  const double size = value.get<double>();
  if (!(size >= 0 && size <= limit)) throw Refusal(Quoted(name) + " is out of range");
  return size;
}

std::vector<std::string> Fields::Texts(std::string_view name) const {
  const Json& value = At(name);
  if (!value.is_array()) throw Refusal(Quoted(name) + " must be a list of texts");
  std::vector<std::string> texts;
  for (const Json& text : value) texts.push_back(ToBytes(text, name));
  return texts;
}

}  // namespace tessel::drive
