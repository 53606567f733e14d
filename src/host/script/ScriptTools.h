// What the window knows of the scripts in it.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QObject>

#include "host/script/BlockMarks.h"
#include "host/script/Folding.h"
#include "host/script/Navigator.h"
#include "host/script/OpenScripts.h"
#include "host/script/OutlineDock.h"
#include "host/script/StructureReader.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// The commands that know what the documents of a control say. Each is an action of the window with
/// its keys, and a slot for whoever has another way to it. The control and the window outlive this.
class ScriptTools : public QObject {
  Q_OBJECT

 public:
  ScriptTools(QMainWindow& window, TesselWidget& control);

  /// As the user left it.
  void RestoreLook() { outline_.RestoreLook(); }

 public slots:
  void GoToDefinition();
  void GoBack() { navigator_.GoBack(); }
  void GoForward() { navigator_.GoForward(); }
  /// Shows the outline with the keys going to its filter, or hides it.
  void ToggleOutline();
  void FoldAll() { folding_.FoldAll(); }
  void UnfoldAll() { folding_.UnfoldAll(); }
  /// Folds the block at the caret, or unfolds it.
  void ToggleFold() { folding_.ToggleAtCaret(); }

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  OpenScripts scripts_;
  Navigator navigator_;
  StructureReader reader_;
  OutlineDock& outline_;
  BlockMarks marks_;
  Folding folding_;
};

}  // namespace tessel
