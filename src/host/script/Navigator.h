// Going to where a name is defined, and back.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <vector>

#include "host/script/OpenScripts.h"
#include "host/script/PlaceHistory.h"
#include "language/Range.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// Goes from place to place as a person does: selects a tab and a piece of its text. Both outlive
/// this.
class Navigator {
  Q_DECLARE_TR_FUNCTIONS(Navigator)

 public:
  Navigator(TesselWidget& control, OpenScripts& scripts);

  /// Looks for the name at the caret, in the current document first. Where several places define
  /// it, a caret in one of them goes on to the next. Returns what there is to say, or nothing.
  QString GoToDefinition();
  /// Selects a piece of a document. The way back leads to where the caret is now.
  void GoTo(Slot slot, language::Range piece);
  void GoBack();
  void GoForward();

 private:
  struct Found {
    Slot slot{};
    language::Range name;

    friend bool operator==(const Found&, const Found&) = default;
  };

  std::vector<Found> DefinitionsOf(std::string_view name,
                                   std::optional<language::Keyword> kind) const;
  Place Here() const;
  void Show(Slot slot, language::Range piece);

  TesselWidget& control_;
  DocumentList& documents_;
  OpenScripts& scripts_;
  PlaceHistory history_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
