// A box around the selection.
#pragma once

#include "qt/editor/EditorTheme.h"
#include "qt/editor/ScintillaDocument.h"

class QsciScintillaBase;

namespace tessel {

/// Drawn over the text while it is wanted, also where the selection is hidden. The widget must
/// outlive it.
class SelectionOutline {
 public:
  explicit SelectionOutline(QsciScintillaBase& widget);

  void Want(bool wanted);
  bool Wanted() const { return wanted_; }
  /// The selection or the text has changed.
  void Follow();
  void Paint(const EditorTheme& theme);
  /// What the box is around; empty when there is none.
  SciRange Shown() const;

 private:
  QsciScintillaBase& widget_;
  bool wanted_ = false;
};

}  // namespace tessel
