// The program's own drawings for icons that the toolkit uses by itself.
#pragma once

#include <QIcon>
#include <QStyle>

namespace tessel {

/// The drawing for that icon, or a null icon where the toolkit's own will do.
QIcon StandardIcon(QStyle::StandardPixmap icon);

}  // namespace tessel
