// A model, its mirror and a document in memory, for tests.
#pragma once

#include <QStringList>
#include <string>
#include <utility>
#include <vector>

#include "models/ControlSet.h"
#include "qt/MemoryDocument.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/ScintillaMirror.h"

namespace tessel {

/// A character of two bytes in UTF-8 that has no byte in Windows-1252.
inline constexpr const char* kForeign = "\xD0\x96";

struct MirroredModel {
  ControlSet controls;
  RichTextBox model{controls, "rtbCon"};
  MemoryDocument document;
  ScintillaMirror mirror{model, document};
  QStringList refusals;
  int takeOversWanted = 0;
  std::vector<Subscription> subscriptions = {
      mirror.Refused.Connect([this](const QString& why) { refusals << why; }),
      mirror.TakeOverWanted.Connect([this] { ++takeOversWanted; })};

  MirroredModel() {
    document.beforeInsertion = [this](auto at, auto size) { mirror.BeforeInsertion(at, size); };
    document.beforeDeletion = [this](auto at, auto size) { mirror.BeforeDeletion(at, size); };
    mirror.Follow();
  }

  MirrorState State() const { return mirror.State(); }
  void Park() { model.SetLeft(kParkedLeft); }
  void Unpark() { model.SetLeft(0); }

  /// Where the character at a model's offset begins, counted.
  SciPosition PositionOf(Position offset) const {
    SciPosition at = 0;
    while (CharactersOfUtf8(document.Utf8(0, at)) < offset) ++at;
    while (at < document.Size() && (document.utf8[static_cast<std::size_t>(at)] & 0xC0) == 0x80) {
      ++at;
    }
    return at;
  }
  /// Changes the document as a key does, the caret behind what it inserts; in characters.
  void Edit(Position at, Position removed, const std::string& utf8) {
    const SciPosition start = PositionOf(at);
    document.Replace(start, PositionOf(at + removed) - start, utf8);
    document.selection = {start + std::ssize(utf8), start + std::ssize(utf8)};
  }
  void EditByHand(Position at, Position removed, const std::string& utf8) {
    mirror.ByHand([&] { Edit(at, removed, utf8); });
  }
  /// Selects as the mouse does.
  void Mark(Position start, Position length) {
    document.selection = {PositionOf(start), PositionOf(start + length)};
    mirror.SelectionMayHaveMoved();
  }
  void TakeOverIfWanted() {
    if (std::exchange(takeOversWanted, 0) > 0) mirror.TakeOver();
  }
  /// Asks for colours as Scintilla does before it draws.
  void Draw() {
    if (document.styledEnd < document.Size()) mirror.ColoursNeeded(document.Size());
  }

  std::string ShownText() const { return BytesOfUtf8(document.utf8).value_or("foreign text"); }
  std::pair<Position, Position> ShownSelection() const {
    const auto [start, end] = document.selection;
    return {CharactersOfUtf8(document.Utf8(0, start)),
            CharactersOfUtf8(document.Utf8(start, end - start))};
  }
  std::pair<Position, Position> Selection() const { return {model.SelStart(), model.SelLength()}; }
  std::vector<ColourRun> ShownColours() const {
    std::vector<ColourRun> runs;
    Position offset = 0;
    for (std::size_t i = 0; i < document.utf8.size(); ++i) {
      if ((document.utf8[i] & 0xC0) == 0x80) continue;
      const Colour colour = mirror.ColourOfStyle(static_cast<unsigned char>(document.styles[i]));
      if (runs.empty() || runs.back().colour != colour) runs.push_back({offset, 0, colour});
      ++runs.back().length;
      ++offset;
    }
    return runs;
  }
  std::vector<ColourRun> Colours() const { return model.Store().Runs(0, model.Length()); }
};

}  // namespace tessel
