// The bytes of one document with their colours and the undo history.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Event.h"
#include "text/IndexRuns.h"
#include "text/TextTypes.h"

namespace tessel {

/// Something that shows a store's text and has to follow its changes.
class TextStoreView {
 public:
  virtual ~TextStoreView() = default;
  /// `removed` bytes at `at` gave way to `inserted` new ones, which the store holds already.
  virtual void Replaced(Position at, Position removed, Position inserted) = 0;
  /// The bytes in [at, at + length) have a new colour.
  virtual void Painted(Position at, Position length) = 0;
};

/// One replacement in a text, for those who are told of it. The strings are there while they are
/// told, and no longer.
struct TextEdit {
  Position at = 0;
  std::string_view removed;
  std::string_view inserted;
  bool joins = false;  ///< it belongs to the same undo step as the one before
};

/// A text with all the room that a store needs for it: a store takes it over without fail.
struct PreparedText {
  PreparedText(std::string text) : bytes(std::move(text)), colours(std::ssize(bytes), 0) {}
  PreparedText(const char* text) : PreparedText(std::string(text)) {}

  std::string bytes;
  IndexRuns colours;  // all black
};

/// A text of single-byte characters in one contiguous buffer, a colour for each, and what undo
/// needs. The store knows nothing of selections, searching or notifications: those rules are
/// RichTextBox's. Positions are taken on trust: 0 ≤ at, at + length ≤ Length().
class TextStore {
 public:
  std::string_view Bytes() const { return bytes_; }
  Position Length() const { return std::ssize(bytes_); }
  /// Another number after every change of the bytes; colours do not count.
  std::uint64_t Revision() const { return revision_; }

  /// Replaces everything; black; nothing to undo.
  void Assign(PreparedText text);
  /// Gives the bytes to the caller, without a copy; the store is as empty as a new one.
  std::string TakeBytes();
  /// Replaces a range by text of one colour and records it as an undo step of its own, or as part
  /// of the step that BeginStep opened or continued. Replacing nothing by nothing is no step.
  void Replace(Position at, Position length, std::string_view inserted, Colour colour);

  Colour ColourAt(Position at) const;
  /// The one colour of a range, or nothing when it is mixed or empty.
  std::optional<Colour> UniformColour(Position at, Position length) const;
  /// Colours are no undo step. A store holds at most 256 different colours: a RuntimeError beyond.
  void Paint(Position at, Position length, Colour colour);
  /// For a view: the colour of each byte of a range, as an index into the palette.
  std::string ColourIndices(Position at, Position length) const;
  const std::vector<Colour>& Palette() const { return palette_; }
  /// All maximal runs of one colour, in order; black ones too.
  std::vector<ColourRun> Runs(Position at, Position length) const;

  /// Edits until EndStep are undone together. With `joinPrevious` they also join the step before.
  void BeginStep(bool joinPrevious);
  void EndStep();

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  /// Takes the last step back (or performs it again); restored text takes the colour that inserted
  /// text takes. Returns the position behind the restored text, or nothing when there is no step.
  std::optional<Position> Undo();
  std::optional<Position> Redo();
  void EmptyUndoBuffer();

  /// What a document looked like, to go back to it whole: text, colours, undo history.
  struct Snapshot;
  Snapshot TakeSnapshot() const;
  void Restore(Snapshot snapshot);

  /// The view to be told of changes, or null.
  void SetView(TextStoreView* view) { view_ = view; }

  /// For those who follow the text beside the view. Both are raised in the midst of things, when
  /// the bytes have changed: a handler looks and remembers, and changes nothing.
  Event<const TextEdit&> Edited;
  /// The text became another one as a whole.
  Event<> Reset;

  /// The colour that text inserted over a range takes by itself: that of the first replaced
  /// character, else of the character before it, else black.
  Colour InheritedColour(Position at, Position length) const;

 private:
  struct Edit {
    Position at = 0;
    std::string removed;
    std::string inserted;
  };
  using Step = std::vector<Edit>;

  void MakeRoom(Position at, Position length, std::string_view inserted);
  void Change(const TextEdit& edit, char colourIndex);
  void TellReset(Position lengthBefore);
  char PaletteIndex(Colour colour);
  Colour ColourOf(char index) const { return palette_[static_cast<unsigned char>(index)]; }

  std::string bytes_;
  IndexRuns colours_;  // an index into palette_ for each byte
  std::vector<Colour> palette_ = {kBlack};
  std::uint64_t revision_ = 0;
  std::vector<Step> undo_;
  std::vector<Step> redo_;
  int openSteps_ = 0;
  bool stepStarted_ = false;
  TextStoreView* view_ = nullptr;
};

struct TextStore::Snapshot {
  std::string bytes;
  IndexRuns colours;
  std::vector<Colour> palette;
  std::vector<Step> undo;
  std::vector<Step> redo;
};

}  // namespace tessel
