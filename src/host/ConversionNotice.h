// The quiet offer to take a conversion back.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "host/NoticeBar.h"
#include "text/TextStore.h"

namespace tessel {

/// A conversion leaves nothing to undo, whoever asked for it. This keeps the text from before: a
/// bar above the control offers it until the document is changed or gone, and puts it back as one
/// edit, with its colours.
class ConversionNotice : public NoticeBar {
  Q_OBJECT

 public:
  ConversionNotice(ucTessel& tessel, QWidget* parent);

 private:
  struct Before {
    std::string text;
    std::vector<ColourRun> colours;
    Position caret = 0;
    std::uint64_t convertedRevision = 0;  // of the text that came of it; 0 while it is on its way
  };

  std::optional<Before>& At(Slot slot);
  void OnConverting(const Document& document);
  void OnCommandEnded();
  void OnChanged(const Document& document);
  void PutBack(RichTextBox& editor, const Before& before);
  void UndoConversion();
  void KeepConverted();
  void Update();

  ucTessel& tessel_;
  std::vector<std::optional<Before>> before_;  // by slot
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
