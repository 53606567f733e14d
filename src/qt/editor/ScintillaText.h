// A Scintilla document that holds the text of an editor's model.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qt/editor/ScintillaIndex.h"
#include "qt/editor/ScintillaStyles.h"
#include "text/TextStore.h"

class QsciScintillaBase;

namespace tessel {

/// Bytes and colours of a model, mirrored in a widget's document as UTF-8, one character for each
/// byte. Offsets are the model's (bytes, 0-based); SciPositions are the document's.
class ScintillaText {
 public:
  explicit ScintillaText(QsciScintillaBase& widget);

  SciPosition PositionOf(Position offset) const { return index_.PositionOf(offset); }
  Position OffsetOf(SciPosition position) const { return index_.OffsetOf(position); }

  /// Somebody else is about to remove a piece.
  void NoteDeletion(SciPosition at, SciPosition length);
  /// Somebody else has inserted a piece.
  void NoteInsertion(SciPosition at, SciPosition length);
  void Replace(Position at, Position removed, std::string_view inserted);

  /// Makes the widget ask for colours (SCN_STYLENEEDED) before it draws what lies behind `from`.
  /// After a change of the text it does so by itself.
  void ForgetColours(Position from);
  /// Colours everything up to `end` that the widget has no colours for, as it stands in `store`.
  void ColourUpTo(SciPosition end, const TextStore& store);
  /// Lets the widget ask for all colours that it lacks now.
  void AskForAllColours();

  /// Makes the text equal to `bytes`, by one replacement of what differs.
  void BecomeEqualTo(std::string_view bytes);

  std::string Bytes() const;
  /// All maximal runs of one colour, in order.
  std::vector<ColourRun> Runs() const;
  /// A piece of the document itself; valid until the document changes.
  std::string_view Utf8(SciPosition at, SciPosition length) const;

  ScintillaStyles& Colours() { return colours_; }

 private:
  SciPosition Size() const;
  /// Up to there Scintilla has the colours; a change of the text takes it back to the change.
  SciPosition ColouredEnd() const;
  void ReplaceUtf8(SciPosition at, SciPosition removed, std::string_view inserted);

  QsciScintillaBase& widget_;
  ScintillaIndex index_;
  ScintillaStyles colours_;
};

}  // namespace tessel
