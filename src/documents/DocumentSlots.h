// The pairing of document tabs and editors: tab k belongs to editor k − 1, its slot.
#pragma once

#include <string>

#include "surface/HostedControls.h"

namespace tessel {

/// The tag of a document that was made from a template and has no file yet.
inline constexpr const char* kUntitled = "Untitled";
/// Colour modes, kept in an editor's tag.
inline constexpr const char* kColourMode = "COLOR";
inline constexpr const char* kPlainMode = "BW";

/// The 0-based slot of the current document: that of the selected tab.
int CurrentDocIndex(const HostedControls& controls);
RichTextBox& CurrentEditor(HostedControls& controls);

/// The slot into which a newly opened or created document goes: the start tab's while that is free,
/// else a new editor's.
int GetFreeEditorIndex(HostedControls& controls);
/// Adds a parked editor and returns its slot. No tab is created.
int LoadNewEditor(HostedControls& controls);
/// Appends an unmodified tab with the lower-cased name.
void AddDocumentTab(HostedControls& controls, const std::string& name);

/// Marks a document as modified when its editor is the one in sight (its left is exactly 0).
void MarkModified(HostedControls& controls, int slot);

/// True when the category selected on tbsCon has this key, ASCII case ignored.
bool CategorySelected(const HostedControls& controls, const std::string& key);

}  // namespace tessel
