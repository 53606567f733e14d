// Colours that can be read on every palette, while the text keeps its own.
#include <QImage>

#include "qt/ScintillaViewFixture.h"
#include "qt/editor/EditorTheme.h"
#include "qt/looks/Contrast.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr Colour kColours[] = {0x0000C8, 0x008000, 0xC00000, 0x0000FF, 0x000001,
                               0xFFFFFF, 0x00FFFF, 0x808080, 0xFF0000};

QPalette PaletteOf(const QColor& base, const QColor& text) {
  QPalette palette;
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::Highlight, QColor(42, 110, 187));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

const QPalette& Dark() {
  static const QPalette palette = PaletteOf(QColor(30, 30, 30), QColor(224, 224, 224));
  return palette;
}

const QPalette& Light() {
  static const QPalette palette = PaletteOf(Qt::white, Qt::black);
  return palette;
}

TEST(EditorTheme, PaintsEveryColourReadablyOnTheBackgroundAndTheCurrentLine) {
  for (const QPalette& palette : {Light(), Dark()}) {
    const EditorTheme theme = ThemeOf(palette, QPalette::Active);
    for (const Colour colour : kColours) {
      const QColor paint = theme.PaintOf(colour);
      EXPECT_GE(ContrastOf(paint, theme.background), kReadableContrast) << std::hex << colour;
      EXPECT_GE(ContrastOf(paint, theme.currentLine), kReadableContrast) << std::hex << colour;
    }
    EXPECT_GE(ContrastOf(theme.marginText, theme.marginBackground), kReadableContrast);
  }
}

TEST(EditorTheme, LeavesReadableColoursAsTheyAre) {
  const EditorTheme theme = ThemeOf(Light(), QPalette::Active);
  EXPECT_EQ(theme.PaintOf(0x0000C8), QColor(200, 0, 0));
  EXPECT_EQ(theme.PaintOf(0xC00000), QColor(0, 0, 192));
}

TEST(EditorTheme, PaintsBlackInThePalettesTextColour) {
  EXPECT_EQ(ThemeOf(Dark(), QPalette::Active).PaintOf(kBlack), QColor(224, 224, 224));
}

TEST(EditorTheme, MeasuresContrastAsDefined) {
  EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21.0, 0.01);
  EXPECT_NEAR(ContrastOf(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

struct ScintillaViewPaints : ScintillaViewFixture {
  /// Counts the pixels near a colour in what the widget paints.
  int PixelsOf(const QColor& colour) {
    const QImage image = view.grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
  }
};

TEST_F(ScintillaViewPaints, ADarkPaletteAtOnceAndLeavesTheTextsColours) {
  model.SetText("\r\nMMMMMMMM");
  Select(2, 8);
  model.SetSelColor(0x0000C8);
  model.SetSelStart(0);
  view.setPalette(Light());
  EXPECT_GT(PixelsOf(QColor(200, 0, 0)), 20);
  view.setPalette(Dark());
  EXPECT_EQ(PixelsOf(QColor(200, 0, 0)), 0);
  EXPECT_GT(PixelsOf(ThemeOf(Dark(), QPalette::Active).PaintOf(0x0000C8)), 20);
  EXPECT_GT(PixelsOf(QColor(30, 30, 30)), 1000);
  model.SetSelStart(2);
  model.SetSelLength(8);
  EXPECT_EQ(model.SelColor(), 0x0000C8U);
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
}

TEST_F(ScintillaViewPaints, TheSelectionUnlessItIsHidden) {
  view.setPalette(Light());
  model.SetText("MMMMMMMM");
  Select(0, 8);
  EXPECT_GT(PixelsOf(QColor(42, 110, 187)), 100);
  view.clearFocus();
  EXPECT_EQ(PixelsOf(QColor(42, 110, 187)), 0);
  model.SetHideSelection(false);
  EXPECT_GT(PixelsOf(QColor(42, 110, 187)), 100);
}

TEST_F(ScintillaViewPaints, TheCurrentLineWithoutTheFocusWhereThatIsWanted) {
  view.setPalette(Light());
  const QColor line = ThemeOf(Light(), QPalette::Inactive).currentLine;
  model.SetText("MMMMMMMM");
  view.clearFocus();
  EXPECT_EQ(PixelsOf(line), 0);
  view.ShowCaretAlways(true);
  EXPECT_GT(PixelsOf(line), 1000);
  view.setFocus();
  view.clearFocus();
  EXPECT_GT(PixelsOf(line), 1000);
  view.ShowCaretAlways(false);
  EXPECT_EQ(PixelsOf(line), 0);
}

TEST_F(ScintillaViewPaints, AMarginThatGrowsWithTheLines) {
  const auto margin = [this] { return view.SendScintilla(Sci::SCI_GETMARGINWIDTHN, 0UL); };
  const long narrow = margin();
  model.SetText(std::string(10000, '\n'));
  EXPECT_GT(margin(), narrow);
}

}  // namespace
}  // namespace tessel
