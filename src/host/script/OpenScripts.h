// What each open document says, kept up to date.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "language/Script.h"
#include "surface/Document.h"
#include "text/ChangedRange.h"

namespace tessel {

/// A reading of the text of each editor. A key costs a note of where the text changed; the text
/// itself is read where somebody asks, for the first time as a whole and then around the changes.
class OpenScripts {
 public:
  /// The editors outlive this.
  explicit OpenScripts(ControlArray<RichTextBox>& editors);

  /// False for a tab whose editor could not be made.
  bool Has(Slot slot) const { return Index(slot) < editors_.Count(); }
  /// Up to date, and valid until the text changes.
  const language::Script& Of(Slot slot);

  /// A document's text has changed: what Of gave is void. In the midst of things, as the events of
  /// the text itself.
  Event<Slot, const ChangedRange&> Changed;

 private:
  struct Reading {
    std::optional<language::Script> script;
    std::uint64_t revision = 0;          // of the text that the script has read
    std::uint64_t told = 0;              // the revision of the last change that was told
    Position length = 0;                 // of the text then
    std::optional<ChangedRange> change;  // since the script was read
    std::vector<Subscription> subscriptions;
  };

  void Add(RichTextBox& editor);
  static void NoteTold(Reading& reading, const RichTextBox& editor);
  void OnEdited(const RichTextBox& editor, const TextEdit& edit);
  void OnReset(const RichTextBox& editor);
  Reading& At(Slot slot) { return *readings_.at(static_cast<std::size_t>(Index(slot))); }

  ControlArray<RichTextBox>& editors_;
  std::vector<std::unique_ptr<Reading>> readings_;  // by slot
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
