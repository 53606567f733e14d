// All editors of the window, those that come later too.
#pragma once

#include <functional>
#include <vector>

#include "qt/TesselWidget.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

class EveryEditor {
 public:
  using Visit = std::function<void(ScintillaView&)>;

  /// `control` outlives this.
  explicit EveryEditor(TesselWidget& control);

  /// Now, for each that there is.
  void Do(const Visit& visit) const;
  /// The same, and for each that is added from now on.
  void Always(const Visit& visit);

 private:
  ScintillaView* ViewOf(const RichTextBox& editor) const;

  TesselWidget& control_;
  std::vector<Visit> always_;
  Subscription loaded_;
};

}  // namespace tessel
