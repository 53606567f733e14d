#include "check/facts/NameTable.h"

#include <bit>

#include "language/Keywords.h"
#include "text/Text.h"

namespace tessel::check {
namespace {

/// FNV-1a: equal for names that differ in case alone.
std::uint32_t HashOfName(std::string_view name) {
  const auto& lower = LowerTable();
  std::uint32_t hash = 0x811C9DC5U;
  for (const char c : name) hash = (hash ^ lower[static_cast<unsigned char>(c)]) * 0x01000193U;
  return hash ^ (hash >> 15U);
}

}  // namespace

NameTable::NameTable(std::size_t names) : slots_(std::bit_ceil(2 * names + 2)) {
  places_.reserve(names);
}

std::size_t NameTable::SlotOf(std::string_view name, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].place != 0) {
    const Slot& slot = slots_[at];
    if (slot.hash == hash && language::SameName(places_[slot.place - 1].name, name)) break;
    at = (at + 1) & mask;
  }
  return at;
}

const NamedPlace* NameTable::Add(const NamedPlace& place) {
  const std::uint32_t hash = HashOfName(place.name);
  Slot& slot = slots_[SlotOf(place.name, hash)];
  if (slot.place != 0) return &places_[slot.place - 1];
  places_.push_back(place);
  slot = {hash, static_cast<std::uint32_t>(places_.size())};
  return nullptr;
}

const NamedPlace* NameTable::Find(std::string_view name) const {
  const Slot& slot = slots_[SlotOf(name, HashOfName(name))];
  return slot.place == 0 ? nullptr : &places_[slot.place - 1];
}

}  // namespace tessel::check
