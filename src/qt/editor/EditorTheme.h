// How the editor's colours look on the desktop's palette.
#pragma once

#include <QColor>
#include <QPalette>

#include "text/TextTypes.h"

namespace tessel {

/// The editor's paints, taken from a palette.
struct EditorTheme {
  QColor background;
  QColor text;
  QColor currentLine;
  QColor selection;
  QColor selectedText;
  QColor marginBackground;
  QColor marginText;
  QColor outline;  // of a box that has to be seen

  /// What a text colour is painted with: itself where it can be read on the background and on the
  /// current line, else the nearest lighter or darker one that can. Black is the palette's text
  /// colour.
  QColor PaintOf(Colour colour) const;
};

EditorTheme ThemeOf(const QPalette& palette, QPalette::ColorGroup group);

}  // namespace tessel
