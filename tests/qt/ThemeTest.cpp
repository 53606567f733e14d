// Which palette the program has, by the user's wish and the desktop's.
#include <gtest/gtest.h>

#include "qt/looks/Theme.h"

namespace tessel::test {
namespace {

QPalette Colours(const QColor& window, const QColor& text) {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  return palette;
}

TEST(ThemeOfTheProgram, IsAsBrightAsTheDesktopsPaletteWhereNobodySaysMore) {
  const QPalette light = Colours("#efefef", Qt::black);
  const QPalette dark = Colours("#303030", "#eeeeee");
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {}, light), PaletteOf(Brightness::kLight));
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {}, dark), PaletteOf(Brightness::kDark));
}

TEST(ThemeOfTheProgram, IsWhatTheDesktopSaysWhateverItsPalette) {
  const QPalette light = Colours("#efefef", Qt::black);
  const QPalette dark = Colours("#303030", "#eeeeee");
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {Brightness::kDark, false}, light),
            PaletteOf(Brightness::kDark));
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {Brightness::kLight, false}, dark),
            PaletteOf(Brightness::kLight));
}

TEST(ThemeOfTheProgram, IsWhatTheUserWishesWhateverTheDesktopSays) {
  const QPalette light = Colours("#efefef", Qt::black);
  EXPECT_EQ(PaletteFor(ColourScheme::kLight, {Brightness::kDark, true}, light),
            PaletteOf(Brightness::kLight));
  EXPECT_EQ(PaletteFor(ColourScheme::kDark, {Brightness::kLight, true}, light),
            PaletteOf(Brightness::kDark));
}

TEST(ThemeOfTheProgram, LeavesColoursOfHighContrastAlone) {
  const QPalette usual = Colours("#efefef", Qt::black);
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {Brightness::kDark, true}, usual), usual);
  for (const QPalette& palette : {Colours(Qt::black, Qt::white), Colours(Qt::white, Qt::black),
                                  Colours(Qt::black, Qt::yellow)}) {
    EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {}, palette), palette);
  }
}

TEST(ThemeOfTheProgram, LeavesAThemeAloneThatIsNamedAfterHighContrast) {
  const QPalette usual = Colours("#efefef", Qt::black);
  qputenv("GTK_THEME", "HighContrastInverse");
  EXPECT_EQ(PaletteFor(ColourScheme::kDesktop, {}, usual), usual);
  qunsetenv("GTK_THEME");
  EXPECT_NE(PaletteFor(ColourScheme::kDesktop, {}, usual), usual);
}

}  // namespace
}  // namespace tessel::test
