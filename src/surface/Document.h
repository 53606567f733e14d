// One open document: its tab and its editor.
#pragma once

#include <string>

#include "surface/ColourMode.h"
#include "surface/HostedControls.h"

namespace tessel {

/// The place of a document among the open ones, from 0: the index of its editor in rtbCon.
enum class Slot : int {};
/// The number of a document's tab on tbsRtb, from 1.
enum class TabNumber : int {};

constexpr int Index(Slot slot) { return static_cast<int>(slot); }
constexpr int Number(TabNumber tab) { return static_cast<int>(tab); }
constexpr TabNumber TabOf(Slot slot) { return TabNumber{Index(slot) + 1}; }
constexpr Slot SlotOf(TabNumber tab) { return Slot{Number(tab) - 1}; }

/// The tag of a document that was made from a template and has no file yet.
inline constexpr const char* kUntitled = "Untitled";

/// What a document is, asked and changed in one place. Its state stands in the hosted controls,
/// where hosts and scenarios see it: in its tab's caption, tag and image, and in its editor's tag
/// and left edge. This is a handle, as cheap as a pointer; it means whatever document is in the
/// slot.
class Document {
 public:
  Document(HostedControls& controls, Slot slot) : controls_(&controls), slot_(slot) {}

  Slot Place() const { return slot_; }
  RichTextBox& Editor() const { return controls_->rtbCon[Index(slot_)]; }

  /// The file it belongs to; empty when it has none.
  std::string Path() const;
  /// The caption of its tab: the file's name in lower case, or "Untitled".
  const std::string& Name() const { return TabAt().caption; }
  /// True for a document that was made from a template and has no file yet.
  bool IsUntitled() const { return TabAt().tag == kUntitled; }
  /// True for the start tab while no document has taken it.
  bool IsFree() const { return TabAt().tag.empty(); }
  bool HasPath(const std::string& path) const { return TabAt().tag == path; }
  /// True when it was changed since it was loaded or saved, as its tab shows it.
  bool Modified() const;
  ColourMode Mode() const { return ColourModeOf(Editor()); }
  /// True when its editor is the one in sight.
  bool InFront() const { return Editor().Left() == 0; }

  /// Marks it as modified when it is the one in sight: what happens to a parked editor is no change
  /// of the user's. Returns true when it was not marked before.
  bool MarkModified() const;

  // --- For those who open, save and close
  /// The file it belongs to from now on.
  void BelongTo(const std::string& path, const std::string& name) const;
  void BecomeUntitled() const;
  void SetModified(bool modified) const;
  /// Nobody's any more: no name, no path, no marker.
  void BecomeFree() const;
  /// What its tab says, and puts it there again.
  Tab TabNow() const { return TabAt(); }
  void PutTab(const Tab& tab) const;
  /// Takes name, path and marker over from another document.
  void TakeTabOf(const Document& other) const;
  /// Puts its editor into the host of the editors, or out of sight.
  void BringToFront() const;
  void Park() const { Editor().SetLeft(kParkedLeft); }

  friend bool operator==(const Document&, const Document&) = default;

 private:
  const Tab& TabAt() const { return controls_->tbsRtb.At(Number(TabOf(slot_))); }

  HostedControls* controls_;
  Slot slot_;
};

}  // namespace tessel
