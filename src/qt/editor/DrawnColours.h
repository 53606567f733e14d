// The colours that an editor draws.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "colouring/LiveColours.h"
#include "text/TextStore.h"

namespace tessel {

/// The model's colours or, while they are live, those that a fresh pass over the text would give.
/// The model itself stays as it is. The store must outlive this.
class DrawnColours {
 public:
  explicit DrawnColours(const TextStore& store) : store_(store) {}

  void SetLive(bool live);
  bool AreLive() const { return areLive_; }

  /// A replacement in the text, which the store holds already. Returns from where on other colours
  /// may have to be drawn than before; nothing where the model tells of that by itself.
  std::optional<Position> Follow(Position at, Position removed, Position inserted);
  /// Nobody draws for a while: the next one to do so has the text read anew.
  void Rest() { live_.reset(); }

  std::span<const Colour> Palette() const;
  /// An index into the palette for each byte of [begin, end). Valid until the next call of anything
  /// here, and the next change of the store.
  std::string_view Indices(Position begin, Position end);

 private:
  const TextStore& store_;
  bool areLive_ = false;
  std::optional<LiveColours> live_;  // of the store's text as it is, or nothing
  std::string indices_;
};

}  // namespace tessel
