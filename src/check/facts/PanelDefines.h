// Which define of a file the settings panel means by each of its items.
#pragma once

#include <span>
#include <vector>

#include "check/facts/FileFacts.h"
#include "settings/PanelItems.h"

namespace tessel::check {

/// The items of the panel, made once.
std::span<const PanelItem> AllPanelItems();

/// For each item the first define of its name in the file, or of one that begins so where the item
/// goes by its beginning; null where there is none.
std::vector<const Statement*> PanelDefinesOf(const FileFacts& file);

/// Whether the panel wants a number there; else it wants YES or NO.
inline bool TakesNumber(const PanelItem& item) { return item.entry >= 0; }

/// True for a file that has the values of the panel: one with a start-up list.
bool IsUserFile(const FileFacts& file);
/// True for one of the newer dialect: it has what the conversion adds.
bool IsNewerDialect(const FileFacts& file);

}  // namespace tessel::check
