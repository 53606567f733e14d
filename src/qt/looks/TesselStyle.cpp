#include "qt/looks/TesselStyle.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionToolButton>
#include <algorithm>

#include "qt/looks/BoxPaint.h"
#include "qt/looks/StandardIcons.h"
#include "qt/looks/Theme.h"

namespace tessel {
namespace {

void PaintFace(QPainter& painter, const QRect& rect, const QColor& face, const QColor& line) {
  painter.setPen(line.isValid() ? QPen(line) : QPen(Qt::NoPen));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
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
    PaintDropArrow(painter, menu, ink);
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

void PaintComboBox(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow) {
  PaintTextBox(painter, option);
  QColor ink = Theme(option.palette).IconInk();
  if (!option.state.testFlag(QStyle::State_Enabled)) ink.setAlphaF(0.35F);
  PaintDropArrow(painter, arrow, ink);
}

/// What the toolkit keeps free above the frame of a group for its title.
int TitleOfGroup(const QStyleOption& option, const QWidget* widget) {
  constexpr int kBelowTitle = 3;
  const auto* group = qobject_cast<const QGroupBox*>(widget);
  if (group == nullptr || group->title().isEmpty()) return kBelowTitle;
  return option.fontMetrics.height() + kBelowTitle;
}

bool IsSeparator(const QStyleOptionMenuItem* item) {
  return item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator &&
         item->text.isEmpty();
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
  if (control == CC_ToolButton && button != nullptr && !button->icon.isNull()) {
    const bool hasMenu = button->subControls & SC_ToolButtonMenu;
    PaintButton(*button, *painter, subControlRect(control, button, SC_ToolButton, widget),
                hasMenu ? subControlRect(control, button, SC_ToolButtonMenu, widget) : QRect());
    return;
  }
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ComboBox && combo != nullptr && combo->frame) {
    PaintComboBox(*painter, *combo, subControlRect(control, combo, SC_ComboBoxArrow, widget));
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_SpinBox) PaintTextBoxEdge(*painter, *option);
}

// Fusion's separators cannot be seen on a dark menu.
void TesselStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element != CE_MenuItem ||
      !IsSeparator(qstyleoption_cast<const QStyleOptionMenuItem*>(option))) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  const int y = option->rect.center().y();
  painter->setPen(Theme(option->palette).Line());
  painter->drawLine(option->rect.left() + 6, y, option->rect.right() - 6, y);
}

void TesselStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  switch (element) {
    case PE_IndicatorRadioButton:
      return PaintOption(*painter, *option);
    case PE_IndicatorCheckBox:
      return PaintCheckBox(*painter, *option);
    case PE_IndicatorTabClose:
      return PaintCloseButton(*painter, *option);
    case PE_Frame:
      return PaintListEdge(*painter, *option);
    case PE_PanelMenu:
      return PaintMenuPanel(*painter, *option);
    case PE_FrameMenu:
      return PaintListEdge(*painter, *option);
    case PE_FrameGroupBox:
      return PaintGroupEdge(*painter, *option, TitleOfGroup(*option, widget));
    case PE_PanelLineEdit:
      if (frame != nullptr && frame->lineWidth > 0) return PaintTextBox(*painter, *option);
      break;
    case PE_PanelButtonCommand:
      if (button != nullptr && !button->features.testFlag(QStyleOptionButton::Flat)) {
        return PaintButtonFace(*painter, *option,
                               button->features.testFlag(QStyleOptionButton::DefaultButton));
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// A group's title stands as high as a label beside it, which Fusion's does not.
QRect TesselStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl part, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  return control == CC_GroupBox && part == SC_GroupBoxLabel ? rect.translated(0, -1) : rect;
}

QSize TesselStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_ItemViewItem) size.setHeight(std::max(size.height(), kLeastRowHeight));
  return size;
}

QIcon TesselStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
  const QIcon own = StandardIcon(icon);
  return own.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : own;
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
    case PM_MenuPanelWidth:
      return 1;
    case PM_TabCloseIndicatorWidth:
    case PM_TabCloseIndicatorHeight:
      return 14;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int TesselStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* more) const {
  switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    // All combo boxes drop a list below themselves, whether they can be typed into or not.
    case SH_ComboBox_Popup:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, more);
  }
}

}  // namespace tessel
