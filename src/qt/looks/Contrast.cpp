#include "qt/looks/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tessel {
namespace {

double LinearOf(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

}  // namespace

double LuminanceOf(const QColor& colour) {
  return 0.2126 * LinearOf(colour.redF()) + 0.7152 * LinearOf(colour.greenF()) +
         0.0722 * LinearOf(colour.blueF());
}

double ContrastOf(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace tessel
