// The colours of the program: derived from the desktop's palette, light or dark.
#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>

namespace tessel {

/// Colours for what is drawn here, from the palette of the widget that draws.
class Theme {
 public:
  explicit Theme(const QPalette& palette) : palette_(palette) {}

  bool Dark() const;
  /// The area on which controls stand, inside the line around it.
  QColor Page() const;
  QColor Line() const;
  /// A line that a person has to see: around what can be clicked.
  /// The ground of a notice to the user.
  QColor Notice() const;
  QColor Outline() const;
  QColor Hover() const;
  QColor Pressed() const;
  QColor Accent() const;
  QColor QuietText() const;
  QColor IconInk() const;

 private:
  QPalette palette_;
};

enum class Brightness { kLight, kDark };

/// The program's own colours.
QPalette PaletteOf(Brightness brightness);

enum class ColourScheme { kDesktop, kLight, kDark };

/// Gives the program its style and its palette; with kDesktop light or dark as the desktop's
/// palette was when this was first called.
void ApplyTheme(QApplication& application, ColourScheme scheme);

}  // namespace tessel
