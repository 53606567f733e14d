#include "qt/looks/TesselStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionToolButton>
#include <algorithm>

#include "qt/looks/Theme.h"

namespace tessel {
namespace {

void PaintFace(QPainter& painter, const QRect& rect, const QColor& face, const QColor& line) {
  painter.setPen(line.isValid() ? QPen(line) : QPen(Qt::NoPen));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

void PaintArrow(QPainter& painter, const QRect& rect, const QColor& ink) {
  const QPointF centre = QRectF(rect).center();
  QPen pen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(
      QPolygonF{centre + QPointF(-3, -1.5), centre + QPointF(0, 1.5), centre + QPointF(3, -1.5)});
}

void PaintButton(const QStyleOptionToolButton& option, QPainter& painter, const QRect& button,
                 const QRect& menu) {
  const Theme theme(option.palette);
  const bool enabled = option.state & QStyle::State_Enabled;
  const bool hovered = enabled && (option.state & QStyle::State_MouseOver);
  const bool down = enabled && (option.state & QStyle::State_Sunken);
  const bool on = option.state & QStyle::State_On;
  const bool menuDown = down && (option.activeSubControls & QStyle::SC_ToolButtonMenu);

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (on) {
    PaintFace(painter, option.rect, theme.Pressed(), theme.Accent());
  } else if (hovered || down) {
    PaintFace(painter, option.rect, theme.Hover(), theme.Line());
  }
  if (down) PaintFace(painter, menuDown ? menu : button, theme.Pressed(), theme.Accent());
  if (!menu.isEmpty()) {
    QColor ink = theme.IconInk();
    if (!enabled) ink.setAlphaF(0.35F);
    PaintArrow(painter, menu, ink);
  }
  if (option.state & QStyle::State_HasFocus) {
    PaintFace(painter, option.rect, Qt::transparent, theme.Accent());
  }
  painter.restore();

  QRect icon(QPoint(), option.iconSize);
  icon.moveCenter(button.center() + QPoint(1, 1));
  option.icon.paint(&painter, icon, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
}

QColor MarkOf(const QStyleOption& option, const Theme& theme) {
  return option.state & QStyle::State_Enabled ? theme.Accent() : theme.Line();
}

/// The empty face of an option or check box, with a line that shows focus and mouse.
void PrepareFace(QPainter& painter, const QStyleOption& option, const Theme& theme) {
  const bool enabled = option.state & QStyle::State_Enabled;
  const bool noticed = option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(!enabled ? theme.Line() : noticed ? theme.Accent() : theme.Outline(), 1));
  painter.setBrush(option.palette.color(QPalette::Base));
}

void PaintOption(QPainter& painter, const QStyleOption& option) {
  const Theme theme(option.palette);
  const QRectF rect(option.rect);
  const double radius = std::min(rect.width(), rect.height()) / 2 - 0.5;
  painter.save();
  PrepareFace(painter, option, theme);
  painter.drawEllipse(rect.center(), radius, radius);
  if (option.state & QStyle::State_On) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(MarkOf(option, theme));
    painter.drawEllipse(rect.center(), radius * 0.55, radius * 0.55);
  }
  painter.restore();
}

void PaintCheckBox(QPainter& painter, const QStyleOption& option) {
  const Theme theme(option.palette);
  const QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.save();
  PrepareFace(painter, option, theme);
  painter.drawRoundedRect(rect, 2, 2);
  if (option.state & QStyle::State_On) {
    const QPointF corner = rect.topLeft();
    const double unit = rect.width() / 12;
    painter.setPen(QPen(MarkOf(option, theme), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{corner + QPointF(3, 6.2) * unit,
                                   corner + QPointF(5.2, 8.6) * unit,
                                   corner + QPointF(9.2, 3.6) * unit});
  }
  painter.restore();
}

/// A cross, on a soft face under the mouse.
void PaintCloseButton(QPainter& painter, const QStyleOption& option) {
  const Theme theme(option.palette);
  const bool hovered =
      option.state.testFlag(QStyle::State_Raised) || option.state.testFlag(QStyle::State_MouseOver);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF face = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (option.state.testFlag(QStyle::State_Sunken) || hovered) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.state.testFlag(QStyle::State_Sunken) ? theme.Pressed() : theme.Hover());
    painter.drawRoundedRect(face, 3, 3);
  }
  painter.setPen(QPen(theme.QuietText(), 1.4));
  const QRectF cross = face.adjusted(4, 4, -4, -4);
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.topRight(), cross.bottomLeft());
  painter.restore();
}

}  // namespace

TesselStyle::TesselStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

TesselStyle* TesselStyle::Shared() {
  static QPointer<TesselStyle> shared;
  if (shared == nullptr) {
    shared = new TesselStyle;
    shared->setParent(qApp);
  }
  return shared;
}

void TesselStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  if (control != CC_ToolButton || button == nullptr || button->icon.isNull()) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  const bool hasMenu = button->subControls & SC_ToolButtonMenu;
  PaintButton(*button, *painter, subControlRect(control, button, SC_ToolButton, widget),
              hasMenu ? subControlRect(control, button, SC_ToolButtonMenu, widget) : QRect());
}

// Fusion's separators cannot be seen on a dark menu.
void TesselStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  const bool separator = element == CE_MenuItem && item != nullptr &&
                         item->menuItemType == QStyleOptionMenuItem::Separator &&
                         item->text.isEmpty();
  if (!separator) return QProxyStyle::drawControl(element, option, painter, widget);
  const int y = option->rect.center().y();
  painter->setPen(Theme(option->palette).Line());
  painter->drawLine(option->rect.left() + 6, y, option->rect.right() - 6, y);
}

void TesselStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  if (element == PE_IndicatorRadioButton) return PaintOption(*painter, *option);
  if (element == PE_IndicatorCheckBox) return PaintCheckBox(*painter, *option);
  if (element == PE_IndicatorTabClose) return PaintCloseButton(*painter, *option);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int TesselStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
  switch (metric) {
    case PM_ToolBarItemMargin:
      return 1;
    case PM_ToolBarFrameWidth:
      return 0;
    case PM_ToolBarItemSpacing:
      return 1;
    case PM_MenuButtonIndicator:
      return 14;
    case PM_TabCloseIndicatorWidth:
    case PM_TabCloseIndicatorHeight:
      return 14;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int TesselStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* more) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, more);
}

}  // namespace tessel
