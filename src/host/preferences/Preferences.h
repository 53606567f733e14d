// What the user wishes of the window.
#pragma once

#include <string>

#include "base/Event.h"
#include "services/Services.h"

namespace tessel {

enum class Wish {
  kReopen,       ///< the documents of the last run are opened at the start
  kAutomation,   ///< other programs may use the control
  kWordWrap,     ///< long lines are wrapped
  kShowBlanks,   ///< blanks and tabs are shown as marks
  kButtonWords,  ///< words stand beside the icons of the toolbar
  kLiveColours,  ///< texts are drawn in colours that follow each edit
  kRuler,        ///< a line marks column 80
  kCompletion,   ///< words and parameters are offered while somebody types
  kIndentation,  ///< a new line begins as the one before
  kZoom,         ///< in points, added to the size of the font
  kTabWidth,     ///< in characters
  kFont,         ///< a family; empty: the desktop's fixed font
  kFontSize,     ///< in points; 0: the desktop's
  kScrollMarks,  ///< a strip at the scroll bar shows matches and changed lines
  kPlaces,       ///< where files were left; no wish of its own, but kept like one
  kTheme,        ///< 0 as the desktop, 1 light, 2 dark
  kBackups,      ///< how many are kept of one file, from 1 to kMostBackupsOfAFile
  kHint,         ///< what to do first is told at the start
  kLiveCheck,    ///< the open documents are checked when the user pauses
};

inline constexpr int kMostBackupsOfAFile = 200;

/// Keeps the wishes in the settings store, in a section that the control does not have. A store
/// that cannot be used is no reason to fail: then a wish is what it is by default.
class Preferences {
 public:
  /// `settings` outlives this.
  explicit Preferences(SettingsStore& settings);

  bool Wants(Wish wish) const { return Number(wish) != 0; }
  /// A value that is no number is the default's.
  int Number(Wish wish) const;
  std::string Text(Wish wish) const;

  void Set(Wish wish, const std::string& value);
  void Set(Wish wish, int value) { Set(wish, std::to_string(value)); }

  /// It has another value now.
  Event<Wish> Changed;

 private:
  SettingsStore& settings_;
};

}  // namespace tessel
