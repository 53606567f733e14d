// What the window knows of the scripts in it.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QObject>

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
  /// `settings` holds the script words.
  ScriptTools(QMainWindow& window, TesselWidget& control, SettingsStore& settings);

  /// As the user left it.
  void RestoreLook() { outline_.RestoreLook(); }

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
  // Preferences; each is remembered.
  void SetCompletesWhileTyping(bool wanted);
  void SetKeepsIndentation(bool wanted);

 signals:
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  void KeepIndentation(bool keep);
  void AddActions(QMainWindow& window);
  QAction* AddPreference(QMainWindow& window, const char* name, const QString& text, bool set);
  void Say(const QString& sentence);

  TesselWidget& control_;
  OpenScripts scripts_;
  Navigator navigator_;
  StructureReader reader_;
  OutlineDock& outline_;
  BlockMarks marks_;
  Folding folding_;
  Completion completion_;
  bool keepsIndentation_ = false;
  Subscription loaded_;
};

}  // namespace tessel
