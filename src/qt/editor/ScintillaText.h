// A Scintilla document that holds the text of an editor's model.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "qt/editor/DrawnColours.h"
#include "qt/editor/ScintillaDocument.h"
#include "qt/editor/ScintillaIndex.h"
#include "qt/editor/ScintillaStyles.h"
#include "text/TextTypes.h"

namespace tessel {

/// Bytes and colours of a model, mirrored in a Scintilla document as UTF-8, one character for each
/// byte. Offsets are the model's (bytes, 0-based); SciPositions are the document's.
class ScintillaText {
 public:
  explicit ScintillaText(ScintillaDocument& document);

  SciPosition PositionOf(Position offset) const { return index_.PositionOf(offset); }
  Position OffsetOf(SciPosition position) const { return index_.OffsetOf(position); }

  /// Somebody else is about to remove a piece.
  void NoteDeletion(SciPosition at, SciPosition length);
  /// Somebody else has inserted a piece.
  void NoteInsertion(SciPosition at, SciPosition length);
  void Replace(Position at, Position removed, std::string_view inserted);

  /// Makes the document ask for colours before it draws what lies behind `from`.
  /// After a change of the text it does so by itself.
  void ForgetColours(Position from);
  /// Colours everything up to `end` that the document has no colours for. `bytes` is the model's
  /// text, which is the document's now.
  void ColourUpTo(SciPosition end, std::string_view bytes, DrawnColours& colours);

  /// Makes the styles for these colours. While the document draws itself it would be too late: new
  /// styles take away what it draws with.
  void MakeStyles(std::span<const Colour> palette);

  // --- The same for colours that change far from an edit: only what is in sight is sure to be
  // right
  /// Colours the page in sight and everything up to `end`. What lies far in front of the page stays
  /// as it is until it is in sight.
  void ColourPage(SciPosition end, std::string_view bytes, DrawnColours& colours);
  /// Makes the document ask for colours where it is about to draw what has none.
  void AskForPage();
  /// The colours from there on are others now. Draws nothing.
  void Outdate(Position from);

  /// Colours what another view of the document is about to draw. For the document's own view all
  /// stays as it is.
  void ColourApart(SciRange page, std::string_view bytes, DrawnColours& colours);
  /// The document's own view does not draw so far behind its page.
  bool IsFarBehindPage(SciPosition at) const;

  /// From now on no more than so many bytes of each line are drawn; nothing: all of them.
  void ShowOfLines(std::optional<Position> bytes);

  /// Makes the text equal to `bytes`, by one replacement of what differs.
  void BecomeEqualTo(std::string_view bytes);

  /// A piece of the document itself; valid until the document changes.
  std::string_view Utf8(SciPosition at, SciPosition length) const {
    return document_.Utf8(at, length);
  }

  ScintillaStyles& Styles() { return styles_; }
  const ScintillaStyles& Styles() const { return styles_; }

 private:
  void ColourRange(SciRange range, std::string_view bytes, DrawnColours& colours);
  /// The second style of each of these, at its number.
  std::array<char, 256> TwinsOf(std::string_view someStyles);
  void HideTails(std::string_view whole, Position first, std::string& styles);
  SciPosition StartOfCharacterAt(SciPosition at) const;

  ScintillaDocument& document_;
  ScintillaIndex index_;
  ScintillaStyles styles_;
  std::optional<Position> shownOfLines_;
  SciPosition styledFrom_ = 0;  // ColourPage has left out what lies in front of it
};

}  // namespace tessel
