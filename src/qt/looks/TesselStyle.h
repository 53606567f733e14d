// How the program's parts look where the toolkit's style is not good enough.
#pragma once

#include <QProxyStyle>

namespace tessel {

/// The least height of a row in lists and trees, in pixels.
inline constexpr int kLeastRowHeight = 20;

/// Fusion with flat toolbar buttons (a soft face under the mouse, an accented one while pressed or
/// switched on), with edges that can be seen on light and dark (BoxPaint.h), with the program's own
/// drawings in boxes and file dialogs, and without the toolkit's pictures on the buttons of
/// dialogs, which are dark also on a dark button.
class TesselStyle : public QProxyStyle {
  Q_OBJECT

 public:
  TesselStyle();

  /// The one instance for toolbars in programs of another style; the application owns it.
  static TesselStyle* Shared();

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override;
};

}  // namespace tessel
