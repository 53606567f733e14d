#include "qt/editor/EditorTheme.h"

#include <algorithm>
#include <cmath>

#include "qt/looks/Contrast.h"

namespace tessel {
namespace {

QColor Mixed(const QColor& a, const QColor& b, double shareOfB) {
  const auto mix = [shareOfB](int x, int y) {
    return static_cast<int>(std::lround(x + (y - x) * shareOfB));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// Moves a colour away from the backgrounds' brightness until it can be read on both.
QColor ReadableOn(const QColor& colour, const QColor& background, const QColor& other) {
  const bool towardsWhite = LuminanceOf(background) < 0.18;
  const QColor goal = towardsWhite ? Qt::white : Qt::black;
  constexpr int kSteps = 50;
  for (int step = 0; step < kSteps; ++step) {
    const QColor candidate = Mixed(colour, goal, static_cast<double>(step) / kSteps);
    const double contrast =
        std::min(ContrastOf(candidate, background), ContrastOf(candidate, other));
    if (contrast >= kReadableContrast) return candidate;
  }
  return goal;
}

}  // namespace

QColor EditorTheme::PaintOf(Colour colour) const {
  if (colour == kBlack) return text;
  const QColor own(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                   static_cast<int>(colour >> 16 & 0xFF));
  return ReadableOn(own, background, currentLine);
}

EditorTheme ThemeOf(const QPalette& palette, QPalette::ColorGroup group) {
  EditorTheme theme;
  theme.background = palette.color(group, QPalette::Base);
  theme.text = palette.color(group, QPalette::Text);
  theme.selection = palette.color(group, QPalette::Highlight);
  theme.selectedText = palette.color(group, QPalette::HighlightedText);
  theme.currentLine = Mixed(theme.background, theme.selection, 0.12);
  theme.marginBackground = Mixed(theme.background, theme.text, 0.04);
  theme.marginText = ReadableOn(Mixed(theme.text, theme.background, 0.5), theme.marginBackground,
                                theme.marginBackground);
  theme.outline = ReadableOn(theme.selection, theme.background, theme.currentLine);
  return theme;
}

}  // namespace tessel
