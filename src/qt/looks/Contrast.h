// How well one colour can be told from another.
#pragma once

#include <QColor>

namespace tessel {

/// The contrast that text of normal size needs (WCAG 2.1, level AA).
inline constexpr double kReadableContrast = 4.5;
/// The one that edges and pictures need.
inline constexpr double kSeenContrast = 3;

/// The relative luminance of WCAG, 0 to 1.
double LuminanceOf(const QColor& colour);

/// The WCAG contrast of two opaque colours, 1 to 21.
double ContrastOf(const QColor& a, const QColor& b);

}  // namespace tessel
