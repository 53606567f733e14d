// Blocks of the script that fold away.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <vector>

#include "host/script/OpenScripts.h"
#include "host/script/StructureReader.h"
#include "language/FoldLines.h"
#include "qt/TesselWidget.h"

namespace tessel {

class ScintillaView;

/// A margin with a mark for each block, by which a person folds it. The text stays as it is, and
/// whatever is selected by code is unfolded. Control, scripts and reader outlive this.
class Folding : public QObject {
  Q_OBJECT

 public:
  Folding(TesselWidget& control, OpenScripts& scripts, StructureReader& reader, QObject* parent);

  // For the current document.
  void FoldAll();
  void UnfoldAll();
  /// The block that the caret's line opens, else the one around it.
  void ToggleAtCaret();

 private:
  void Add(RichTextBox& editor);
  ScintillaView* ViewOf(const RichTextBox& editor) const;
  void BeginMarking(Slot slot, const language::Structure& structure);
  void MarkOn();
  void Toggle(ScintillaView& view, long line);
  void TakeCaretOutOfFold(ScintillaView& view);
  static void Reveal(const RichTextBox& editor, ScintillaView& view);

  TesselWidget& control_;
  OpenScripts& scripts_;
  std::vector<language::FoldLine> lines_;  // to be given to the view
  std::size_t next_ = 0;                   // of them
  Slot slot_{};                            // whose lines they are
  QPointer<ScintillaView> view_;
  QTimer marking_;
  std::vector<Subscription> selections_;  // by slot
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
