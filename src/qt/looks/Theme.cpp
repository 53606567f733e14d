#include "qt/looks/Theme.h"

#include "qt/looks/Contrast.h"
#include "qt/looks/TesselStyle.h"

namespace tessel {
namespace {

struct Role {
  QPalette::ColorRole role;
  const char* light;
  const char* dark;
};

constexpr Role kRoles[] = {
    {QPalette::Window, "#eef1f5", "#24272d"},
    {QPalette::WindowText, "#1d232b", "#e3e6eb"},
    {QPalette::Base, "#ffffff", "#1a1c21"},
    {QPalette::AlternateBase, "#f5f7fa", "#202329"},
    {QPalette::Text, "#1d232b", "#e3e6eb"},
    {QPalette::Button, "#f8fafc", "#31353d"},
    {QPalette::ButtonText, "#1d232b", "#e3e6eb"},
    {QPalette::BrightText, "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase, "#1f2630", "#3a3f49"},
    {QPalette::ToolTipText, "#f5f7fa", "#f0f2f5"},
    {QPalette::PlaceholderText, "#69737f", "#949ca8"},
    {QPalette::Highlight, "#1f66c1", "#3b74c4"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#1558b0", "#7db1f5"},
    {QPalette::LinkVisited, "#6b4fa0", "#b79cf0"},
    {QPalette::Light, "#ffffff", "#3a3f48"},
    {QPalette::Midlight, "#f3f5f8", "#30343b"},
    {QPalette::Mid, "#c3cad3", "#474d58"},
    {QPalette::Dark, "#a2acb8", "#101215"},
    {QPalette::Shadow, "#7a8592", "#08090b"},
};

constexpr Role kDisabledRoles[] = {
    {QPalette::WindowText, "#89929d", "#767d88"},      {QPalette::Text, "#89929d", "#767d88"},
    {QPalette::ButtonText, "#89929d", "#767d88"},      {QPalette::Base, "#eef1f5", "#24272d"},
    {QPalette::Button, "#eef1f5", "#282b31"},          {QPalette::Highlight, "#b7c0cb", "#464c56"},
    {QPalette::HighlightedText, "#f5f7fa", "#a0a7b2"},
};

QColor Blended(const QColor& a, const QColor& b, double share) {
  return QColor::fromRgbF(static_cast<float>(a.redF() + (b.redF() - a.redF()) * share),
                          static_cast<float>(a.greenF() + (b.greenF() - a.greenF()) * share),
                          static_cast<float>(a.blueF() + (b.blueF() - a.blueF()) * share));
}

Brightness WantedBrightness(ColourScheme scheme, const DesktopWishes& desktop,
                            const QPalette& desktopPalette) {
  if (scheme == ColourScheme::kDark) return Brightness::kDark;
  if (scheme == ColourScheme::kLight) return Brightness::kLight;
  if (desktop.brightness) return *desktop.brightness;
  return Theme(desktopPalette).Dark() ? Brightness::kDark : Brightness::kLight;
}

/// Where the toolkit does not know the desktop's theme, the environment may name it.
bool NamesHighContrast() { return qgetenv("GTK_THEME").startsWith("HighContrast"); }

}  // namespace

bool Theme::Dark() const {
  return palette_.color(QPalette::Window).lightness() <
         palette_.color(QPalette::WindowText).lightness();
}

QColor Theme::Page() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::Button),
                 Dark() ? 0.45 : 0.9);
}

QColor Theme::Line() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::WindowText),
                 Dark() ? 0.18 : 0.2);
}

QColor Theme::Notice() const {
  constexpr QColor kAmber(0xe8, 0xa0, 0x10);
  return Blended(palette_.color(QPalette::Base), kAmber, Dark() ? 0.16 : 0.2);
}

QColor Theme::Outline() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::WindowText), 0.5);
}

QColor Theme::Hover() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::WindowText), 0.08);
}

QColor Theme::Pressed() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::Highlight),
                 Dark() ? 0.4 : 0.22);
}

QColor Theme::Accent() const {
  const QColor highlight = palette_.color(QPalette::Active, QPalette::Highlight);
  return Dark() ? Blended(highlight, Qt::white, 0.35) : highlight;
}

QColor Theme::QuietText() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::WindowText), 0.78);
}

QColor Theme::IconInk() const {
  return Blended(palette_.color(QPalette::Window), palette_.color(QPalette::WindowText), 0.82);
}

QPalette PaletteOf(Brightness brightness) {
  const bool dark = brightness == Brightness::kDark;
  QPalette palette;
  for (const Role& role : kRoles) palette.setColor(role.role, dark ? role.dark : role.light);
  for (const Role& role : kDisabledRoles) {
    palette.setColor(QPalette::Disabled, role.role, dark ? role.dark : role.light);
  }
  return palette;
}

bool IsHighContrast(const QPalette& palette) {
  // 21 is the most there is; usual palettes have 18.5 at most.
  constexpr double kUnusualContrast = 19;
  return ContrastOf(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >=
         kUnusualContrast;
}

QPalette PaletteFor(ColourScheme scheme, const DesktopWishes& desktop,
                    const QPalette& desktopPalette) {
  const bool staysAsItIs =
      desktop.highContrast || NamesHighContrast() || IsHighContrast(desktopPalette);
  if (scheme == ColourScheme::kDesktop && staysAsItIs) return desktopPalette;
  return PaletteOf(WantedBrightness(scheme, desktop, desktopPalette));
}

void ApplyTheme(QApplication& application, ColourScheme scheme, const DesktopWishes& desktop) {
  // The palette is the desktop's only until the first call.
  static const QPalette desktopPalette = application.palette();
  application.setStyle(new TesselStyle);
  application.setPalette(PaletteFor(scheme, desktop, desktopPalette));
}

}  // namespace tessel
