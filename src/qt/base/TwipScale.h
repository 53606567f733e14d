// Between the models' twips and a widget's pixels.
#pragma once

#include <QWidget>

#include "models/Control.h"

namespace tessel {

inline constexpr double kTwipsPerInch = 1440;

/// Whole device-independent pixels at `dpi` dots an inch. A parked control's place is far outside
/// at any resolution.
int TwipsToPixels(Twips twips, int dpi);
Twips PixelsToTwips(int pixels, int dpi);

/// Where the control stands, in pixels of `screenOf`'s logical resolution. Edges are rounded, not
/// sizes, so that neighbours meet.
QRect PixelGeometry(const Control& control, const QWidget& screenOf);

}  // namespace tessel
