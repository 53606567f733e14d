// What the window knows of the scripts in it.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QObject>
#include <vector>

#include "host/preferences/Preferences.h"
#include "host/script/BlockMarks.h"
#include "host/script/Completion.h"
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
  /// `settings` holds the script words. All outlive this.
  ScriptTools(QMainWindow& window, TesselWidget& control, Preferences& preferences,
              SettingsStore& settings);

  /// What a document says, up to date, and valid until its text changes.
  const language::Script& ScriptOf(Slot slot) { return scripts_.Of(slot); }
  /// The same for whoever follows the changes of all documents.
  OpenScripts& Scripts() { return scripts_; }
  /// Selects a piece of a document; the way back leads to where the caret is now.
  void GoTo(Slot slot, language::Range piece) { navigator_.GoTo(slot, piece); }
  /// As the user left it.
  void RestoreLook() { outline_.RestoreLook(); }

  /// The titles of the levels that the list of levels has, by the document in front.
  QStringList TitlesOfListedLevels();

 public slots:
  void GoToDefinition() { Say(navigator_.GoToDefinition()); }
  void GoBack() { navigator_.GoBack(); }
  void GoForward() { navigator_.GoForward(); }
  /// Shows the outline with the keys going to its filter, or hides it.
  void ToggleOutline();
  void FoldAll() { folding_.FoldAll(); }
  void UnfoldAll() { folding_.UnfoldAll(); }
  /// Folds the block at the caret, or unfolds it.
  void ToggleFold() { folding_.ToggleAtCaret(); }
  /// Offers what the word at the caret may become.
  void Complete() { Say(completion_.Complete()); }
  void ShowParameters() { Say(completion_.ShowParameters()); }

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  void AddActions(QMainWindow& window);
  void AddPreference(QMainWindow& window, const char* name, const QString& text, Wish wish);
  void ApplyWishes();
  void Say(const QString& sentence);

  TesselWidget& control_;
  Preferences& preferences_;
  OpenScripts scripts_;
  Navigator navigator_;
  StructureReader reader_;
  OutlineDock& outline_;
  BlockMarks marks_;
  Folding folding_;
  Completion completion_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
