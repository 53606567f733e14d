// Replacing in the open documents.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

#include "host/find/DocumentSearch.h"
#include "host/find/ReplaceMatches.h"
#include "host/find/Replacement.h"

namespace tessel {

/// Replaces as a person does: in the document in front, and nothing where it is open for reading
/// only. What it returns is a sentence for the status bar when something was in the way, else it is
/// empty. `control` and `search` outlive it.
class DocumentReplace {
  Q_DECLARE_TR_FUNCTIONS(DocumentReplace)

 public:
  DocumentReplace(TesselWidget& control, DocumentSearch& search)
      : control_(control), search_(search) {}

  /// So many have been replaced in these documents.
  Event<std::size_t, const std::vector<Slot>&> Replaced;

  /// Replaces the match that is selected, if there is one, and goes on to the next. Returns a
  /// sentence when something is in the way.
  QString One(const QString& text);
  /// All matches of the document, or of what the search is limited to: one undo step.
  QString All(const QString& text);
  /// All matches of each document, which is brought to the front for it. The one in front now is
  /// in front again in the end.
  QString Everywhere(const QString& text);

 private:
  /// Why nothing can be replaced in the document in front; else empty.
  QString Refusal() const;
  Replacement ReplacementBy(const QString& text) const;
  /// How many it has replaced.
  std::size_t ReplaceIn(const std::optional<SearchArea>& area, const Replacement& replacement);
  void Change(RichTextBox& editor, std::vector<TextChange> changes);

  TesselWidget& control_;
  DocumentSearch& search_;
};

}  // namespace tessel
