// Icons drawn from SVG in the colours of the palette.
#pragma once

#include <QIcon>
#include <QString>

namespace tessel {

/// The icon of that name in the resource ":/tessel/icons". Its two colours, #404040 and #0060c0,
/// stand for the ink and the accent of the palette at the time of drawing; a disabled icon is
/// paler.
QIcon SvgIcon(const QString& name);

}  // namespace tessel
