// The quiet notice that a document is for reading only.
#pragma once

#include <optional>
#include <vector>

#include "host/NoticeBar.h"
#include "qt/TesselWidget.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

/// Files with a line so long that each key would take a good part of a second are opened for
/// reading, and no more than the beginning of such lines is drawn; this bar says so above them. The
/// panel, the tools and the conversion work as ever.
class ReadingNotice : public NoticeBar {
  Q_OBJECT

 public:
  /// The longest line that is edited, in bytes. A key in it takes 3 ms where words come again and
  /// again, and 50 to 100 ms where no word comes twice.
  static constexpr Position kLongestEdited = 131'072;
  /// What is drawn of each line of a document that has a longer one, in bytes.
  static constexpr Position kShown = 4'096;

  /// `control` outlives it.
  ReadingNotice(TesselWidget& control, QWidget* parent);

 private:
  void Look(const Document& document);
  void Set(const Document& document, const std::optional<Reading>& reading);
  void Show(const Document& document);
  void ShowFor(const std::optional<Reading>& reading);
  ScintillaView& ViewOf(const Document& document) const;

  TesselWidget& control_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
