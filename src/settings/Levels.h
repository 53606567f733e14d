// The levels page: episode and level, map file and title of the "definelevelname" lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/Services.h"
#include "surface/HostedControls.h"

namespace tessel {

class Levels {
 public:
  /// `conPath` is where the map dialog starts. Everything passed outlives this.
  Levels(HostedControls& controls, const Services& services, const std::string& conPath);

  /// Rebuilds cboEpisode from the current document: one entry per level line, in document order.
  void FillLevelList();
  /// Fills the map and title boxes from the first line that starts as the entry says. An entry
  /// whose line is not found leaves the boxes as they are.
  void ShowLevel(const std::string& entry);

  /// Empties the boxes and disables their insert buttons.
  void ClearBoxes();
  /// No level chosen, boxes empty, and the list made anew.
  void Restart();

  void cboEpisode_Click();
  void cmdMap_Click();
  void txtMap_GotFocus();
  void txtTitle_GotFocus();
  /// Index 0 writes the map, 1 the title, over whatever the last search left selected.
  void cmdInsert_Click(int index);

 private:
  void SelectInDocument(const TextBox& box);
  void OfferInsert(int index);

  HostedControls& controls_;
  Services services_;
  const std::string& conPath_;
};

/// Episode and level of a level line ("0 7"): what stands between its first and its third blank.
/// Nothing when the line has fewer blanks.
std::optional<std::string> EpisodeAndLevel(std::string_view line);

/// The title in the end of a level line that starts with its map name: what stands behind the
/// second colon, two digits and a blank.
std::string TitleOfLevel(std::string_view mapToLineEnd);

}  // namespace tessel
