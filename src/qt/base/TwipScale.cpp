#include "qt/base/TwipScale.h"

#include <cmath>

namespace tessel {

int TwipsToPixels(Twips twips, int dpi) {
  return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

Twips PixelsToTwips(int pixels, int dpi) { return pixels * kTwipsPerInch / dpi; }

QRect PixelGeometry(const Control& control, const QWidget& screenOf) {
  const int xDpi = screenOf.logicalDpiX();
  const int yDpi = screenOf.logicalDpiY();
  const int left = TwipsToPixels(control.Left(), xDpi);
  const int top = TwipsToPixels(control.Top(), yDpi);
  return {left, top, TwipsToPixels(control.Left() + control.Width(), xDpi) - left,
          TwipsToPixels(control.Top() + control.Height(), yDpi) - top};
}

}  // namespace tessel
