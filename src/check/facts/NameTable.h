// Finds places by names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tessel::check {

/// Where a name is given to something.
struct NamedPlace {
  std::string_view name;        ///< as it stands there, in a text that outlives the table
  std::uint32_t file = 0;       ///< index of the file
  std::uint32_t statement = 0;  ///< index of the statement among those of its keyword
};

/// Keeps the first place of each name. Names are the same whatever their case (see
/// language::SameName).
class NameTable {
 public:
  /// `names` is the most that will be added.
  explicit NameTable(std::size_t names = 0);

  /// The place that the name has from before; null where it is new and has been added.
  const NamedPlace* Add(const NamedPlace& place);
  /// Null where there is no such name.
  const NamedPlace* Find(std::string_view name) const;

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t place = 0;  // one more than the index; 0: free
  };

  std::size_t SlotOf(std::string_view name, std::uint32_t hash) const;

  std::vector<Slot> slots_;  // a power of two, at most half of them taken
  std::vector<NamedPlace> places_;
};

}  // namespace tessel::check
