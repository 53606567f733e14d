// The edits that turn a user file of the 1.3D dialect into one of the 1.4/1.5 dialect.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "converter/EditPrimitives.h"
#include "models/RichTextBox.h"

namespace tessel {

/// An edit of one step. Most steps are one edit.
struct VersionEdit {
  enum class When { kAlways, kIfEditBeforeFoundItsText };

  int step;  ///< from 1
  EditOutcome (*apply)(RichTextBox&, const VersionEdit&);
  std::string_view sought;
  std::string_view text = {};  ///< what is written; with a replacement, what that replaces
  std::string_view replacement = {};
  When when = When::kAlways;
};

/// All edits, in the order in which they are carried out. Steps are numbered from 1 without a gap;
/// the edits of one step follow each other.
std::span<const VersionEdit> VersionEdits();

/// What one step of a conversion did.
struct StepResult {
  int step = 0;             ///< its number, from 1
  std::string_view sought;  ///< the text that it looks for (the first, where there are several)
  bool found = false;       ///< whether that text was there
  bool changed = false;     ///< whether the document's text is another now
};

/// Carries out the steps on the editor's text, in their order, and returns what each did. A step
/// whose text is missing is skipped, but a text without the start-up parameter list is a
/// RuntimeError that names what is missing; the steps before it have been carried out then.
std::vector<StepResult> ApplyVersionEdits(RichTextBox& editor);

}  // namespace tessel
