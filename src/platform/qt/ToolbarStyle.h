// How the toolbar's buttons look.
#pragma once

#include <QProxyStyle>

namespace tessel {

/// Flat buttons: a soft face under the mouse, an accented one while pressed or switched on.
class ToolbarStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// The one instance; the application owns it.
  static ToolbarStyle* Shared();

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
};

}  // namespace tessel
