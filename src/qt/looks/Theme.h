// The colours of the program: derived from the desktop's palette, light or dark.
#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <optional>

namespace tessel {

/// Colours for what is drawn here, from the palette of the widget that draws.
class Theme {
 public:
  explicit Theme(const QPalette& palette) : palette_(palette) {}

  bool Dark() const;
  /// The area on which controls stand, inside the line around it.
  QColor Page() const;
  QColor Line() const;
  /// The ground of a notice to the user.
  QColor Notice() const;
  /// A line that a person has to see: around what can be clicked.
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

/// What a desktop asks of programs.
struct DesktopWishes {
  std::optional<Brightness> brightness;
  bool highContrast = false;

  friend bool operator==(const DesktopWishes&, const DesktopWishes&) = default;
};

/// Whether a palette is one for people who need more contrast than usual.
bool IsHighContrast(const QPalette& palette);

/// The palette for that scheme. With kDesktop it is light or dark as `desktop` says or, where that
/// says nothing, as the desktop's own palette is; and where the desktop wishes for high contrast,
/// or has a palette of that kind, its palette stays.
QPalette PaletteFor(ColourScheme scheme, const DesktopWishes& desktop,
                    const QPalette& desktopPalette);

/// Gives the program its style and its palette. The desktop's palette is the one that the program
/// had when this was first called.
void ApplyTheme(QApplication& application, ColourScheme scheme, const DesktopWishes& desktop = {});

}  // namespace tessel
