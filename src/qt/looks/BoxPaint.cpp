#include "qt/looks/BoxPaint.h"

#include <QStyle>

#include "qt/looks/Theme.h"

namespace tessel {
namespace {

constexpr double kCorner = 2;

/// Strokes of odd widths lie between the pixels' edges.
QRectF Stroked(const QRect& rect, double width) {
  return QRectF(rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
}

QPen EdgePen(const QStyleOption& option) {
  const Theme theme(option.palette);
  const bool focus = option.state.testFlag(QStyle::State_HasFocus);
  return focus ? QPen(theme.Accent(), 2) : QPen(theme.Outline(), 1);
}

void PaintEdge(QPainter& painter, const QRect& rect, const QPen& pen, const QBrush& face) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(face);
  painter.drawRoundedRect(Stroked(rect, pen.widthF()), kCorner, kCorner);
  painter.restore();
}

/// Without rounded corners, in which what lies below would show.
void PaintSquareEdge(QPainter& painter, const QRect& rect, const QColor& line) {
  painter.save();
  painter.setPen(line);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

}  // namespace

void PaintTextBox(QPainter& painter, const QStyleOption& option) {
  PaintEdge(painter, option.rect, EdgePen(option), option.palette.base());
}

void PaintTextBoxEdge(QPainter& painter, const QStyleOption& option) {
  PaintEdge(painter, option.rect, EdgePen(option), Qt::NoBrush);
}

void PaintButtonFace(QPainter& painter, const QStyleOption& option, bool isDefault) {
  const Theme theme(option.palette);
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool hovered = enabled && option.state.testFlag(QStyle::State_MouseOver);
  QPen pen = enabled ? EdgePen(option) : QPen(theme.Line(), 1);
  if (enabled && isDefault) pen.setColor(theme.Accent());
  QColor face = option.palette.color(QPalette::Button);
  if (hovered) face = theme.Hover();
  if (down) face = theme.Pressed();
  PaintEdge(painter, option.rect, pen, face);
}

void PaintListEdge(QPainter& painter, const QStyleOption& option) {
  const Theme theme(option.palette);
  const bool focus = option.state.testFlag(QStyle::State_HasFocus);
  PaintSquareEdge(painter, option.rect, focus ? theme.Accent() : theme.Outline());
}

void PaintMenuPanel(QPainter& painter, const QStyleOption& option) {
  painter.fillRect(option.rect, option.palette.base());
  PaintSquareEdge(painter, option.rect, Theme(option.palette).Outline());
}

void PaintGroupEdge(QPainter& painter, const QStyleOption& option, int title) {
  PaintEdge(painter, option.rect.adjusted(0, title, 0, 0), QPen(Theme(option.palette).Outline(), 1),
            Qt::NoBrush);
}

void PaintDropArrow(QPainter& painter, const QRect& rect, const QColor& ink) {
  const QPointF centre = QRectF(rect).center();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(
      QPolygonF{centre + QPointF(-3, -1.5), centre + QPointF(0, 1.5), centre + QPointF(3, -1.5)});
  painter.restore();
}

}  // namespace tessel
