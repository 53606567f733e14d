#include "qt/editor/DrawnColours.h"

namespace tessel {

void DrawnColours::SetLive(bool live) {
  areLive_ = live;
  live_.reset();
}

std::optional<Position> DrawnColours::Follow(Position at, Position removed, Position inserted) {
  if (!areLive_) return std::nullopt;
  if (!live_) return 0;
  return live_->Update(store_.Bytes(), at, removed, inserted);
}

std::span<const Colour> DrawnColours::Palette() const {
  return areLive_ ? LiveColours::Palette() : store_.Palette();
}

std::string_view DrawnColours::Indices(Position begin, Position end) {
  if (!areLive_) return indices_ = store_.ColourIndices(begin, end - begin);
  if (!live_) live_.emplace(store_.Bytes());
  indices_ = live_->ColoursOf(store_.Bytes(), begin, end);
  return indices_;
}

}  // namespace tessel
