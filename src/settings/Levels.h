// The levels page: episode and level, map file and title of the "definelevelname" lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "models/Buttons.h"
#include "models/CommonDialog.h"
#include "models/ControlArray.h"
#include "models/Lists.h"
#include "models/TabStrip.h"
#include "models/TextBox.h"
#include "services/Services.h"
#include "settings/PanelWrite.h"
#include "surface/DocumentList.h"

namespace tessel {

class Levels {
 public:
  /// The controls that the page uses. They outlive it, as do the services.
  struct Controls {
    const TabStrip& tbsCon;
    ComboBox& cboEpisode;
    TextBox& txtMap;
    TextBox& txtTitle;
    ControlArray<CommandButton>& cmdInsert;
    CommonDialog& dlgCommon;
  };
  struct Services {
    ScreenPointer& pointer;
    FileDialogs& fileDialogs;
    Files& files;
    Focus& focus;
  };

  /// `conPath` is where the map dialog starts.
  Levels(const DocumentList& documents, const Controls& controls, const Services& services,
         const std::string& conPath, MayPanelWrite mayWrite = MayAlwaysWrite);

  /// Rebuilds cboEpisode from the current document: one entry per level line, in document order.
  void FillLevelList();
  /// Fills the map and title boxes from the first line that starts as the entry says. An entry
  /// whose line is not found leaves the boxes as they are.
  void ShowLevel(const std::string& entry);

  /// A document came to the front: its levels are listed when the page is in sight, or later.
  void DocumentShown();
  /// A document was opened, or made from a template: no level is chosen any more.
  void DocumentLoaded(const Document& document);

  void cboEpisode_Click();
  void cmdMap_Click();
  void txtMap_GotFocus();
  void txtTitle_GotFocus();
  /// Index 0 writes the map, 1 the title, over whatever the last search left selected.
  void cmdInsert_Click(int index);

 private:
  void ClearBoxes();
  void Restart();
  bool PageSelected() const;
  void SelectInDocument(const TextBox& box);
  void OfferInsert(int index);

  const DocumentList& documents_;
  Controls controls_;
  Services services_;
  const std::string& conPath_;
  MayPanelWrite mayWrite_;
};

/// Episode and level of a level line ("0 7"): what stands between its first and its third blank.
/// Nothing when the line has fewer blanks.
std::optional<std::string> EpisodeAndLevel(std::string_view line);

/// The title in the end of a level line that starts with its map name: what stands behind the
/// second colon, two digits and a blank.
std::string TitleOfLevel(std::string_view mapToLineEnd);

}  // namespace tessel
