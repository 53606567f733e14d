// The editor: its text and selection, and the colours of the lines in sight.
#include <algorithm>
#include <array>
#include <utility>

#include "drive/qt/ControlComparisons.h"
#include "drive/qt/EditorScreen.h"
#include "qt/base/QtText.h"
#include "qt/base/Utf8.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorSetUp.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::drive {
namespace {

using Sci = QsciScintillaBase;

/// A piece of a view's document, in bytes of its UTF-8.
struct Piece {
  long start = 0;
  long end = 0;
};

unsigned long Word(long value) { return static_cast<unsigned long>(value); }

/// The lines of which something is in sight; nothing where the window is too small for any.
Piece LinesInSight(const ScintillaView& view) {
  const QRect seen = view.viewport()->visibleRegion().boundingRect();
  if (seen.isEmpty()) return {};
  const long last = view.SendScintilla(Sci::SCI_GETLINECOUNT) - 1;
  const long top = view.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  const long height = view.SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL);
  const auto lineAt = [&](int y) {
    const long row = top + y / height;
    return Word(std::min(last, view.SendScintilla(Sci::SCI_DOCLINEFROMVISIBLE, Word(row))));
  };
  return {view.SendScintilla(Sci::SCI_POSITIONFROMLINE, lineAt(seen.top())),
          view.SendScintilla(Sci::SCI_GETLINEENDPOSITION, lineAt(seen.bottom()))};
}

/// As Scintilla has colours.
Colour PaintOf(const ScintillaView& view, Colour colour) {
  const QColor paint = ThemeOfWidget(view).PaintOf(colour);
  return static_cast<Colour>(paint.red() | paint.green() << 8 | paint.blue() << 16);
}

/// Compares the paint of each style once.
class PaintComparison {
 public:
  PaintComparison(const ScintillaView& view, Comparison& comparison)
      : view_(view), comparison_(comparison) {}

  void Expect(unsigned char style, Colour colour) {
    if (std::exchange(seen_[style], true)) return;
    const long paint = view_.SendScintilla(Sci::SCI_STYLEGETFORE, Word(style));
    comparison_.ExpectColour("paint of a colour", PaintOf(view_, colour),
                             static_cast<Colour>(paint));
  }

 private:
  const ScintillaView& view_;
  Comparison& comparison_;
  std::array<bool, 256> seen_{};
};

// Styles count as they stand in the cells: what an edit left alone is not painted again, and is
// not asked for.
void CompareColours(const RichTextBox& model, ScintillaView& view, Comparison& comparison) {
  const Piece piece = LinesInSight(view);
  std::string cells(2 * Word(piece.end - piece.start) + 2, '\0');  // a character and its style
  view.SendScintilla(Sci::SCI_GETSTYLEDTEXT, piece.start, piece.end, cells.data());
  PaintComparison paints(view, comparison);
  const std::string_view utf8 = ShownUtf8(view).substr(0, Word(piece.end));
  const Position first = CharactersOfUtf8(utf8.substr(0, Word(piece.start)));
  const std::string indices =
      model.Store().ColourIndices(first, CharactersOfUtf8(utf8.substr(Word(piece.start))));
  const auto colourOf = [&model](char index) {
    return model.Store().Palette()[static_cast<unsigned char>(index)];
  };
  std::size_t character = 0;
  for (long i = 0; i < piece.end - piece.start; ++i) {
    if (!StartsCharacter(cells[2 * Word(i)])) continue;
    const auto style = static_cast<unsigned char>(cells[2 * Word(i) + 1]);
    const Colour expected = colourOf(indices[character]);
    const Colour shown = view.mirror().ColourOfStyle(style);
    if (shown != expected) {
      return comparison.ExpectColour("colour of byte " + std::to_string(Word(first) + character),
                                     expected, shown);
    }
    paints.Expect(style, expected);
    ++character;
  }
}

}  // namespace

void CompareEditor(const RichTextBox& model, QWidget& widget, Comparison& comparison) {
  auto* view = qobject_cast<ScintillaView*>(&widget);
  if (view == nullptr) return comparison.Note("widget", "an editor", "another kind");
  if (ShownUtf8(*view) != Utf8OfBytes(model.Bytes())) {
    const auto shown = ShownUtf8(*view);
    const QString text = QString::fromUtf8(shown.data(), std::ssize(shown));
    return comparison.Expect("text", ShownText(model.Bytes()), text);
  }
  const auto [start, length] = ShownSelection(*view);
  comparison.Expect("start of the selection", long{model.SelStart()}, long{start});
  comparison.Expect("length of the selection", long{model.SelLength()}, long{length});
  if (!view->LiveColours()) CompareColours(model, *view, comparison);
}

}  // namespace tessel::drive
