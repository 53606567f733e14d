// Every item of the menu bar: where it stands, its keys, and what it does.
#pragma once

#include <QString>
#include <span>

#include "control/Commands.h"

namespace tessel {

enum class Menu { kFile, kEdit, kSearch, kView, kGame, kTools, kWindow, kHelp };

/// What the window does itself.
enum class WindowCommand {
  kNone,
  // File
  kNew,
  kRecent,
  kOpen,
  kCloseOthers,
  kBackups,
  kReopen,
  kAutomation,
  kQuit,
  // Edit
  kUndo,
  kRedo,
  kShowChanges,
  kToggleComment,
  kPreferences,
  // Search
  kFindBar,
  kReplace,
  kNextMatch,
  kPreviousMatch,
  kGoToLine,
  // View
  kZoomIn,
  kZoomOut,
  kZoomReset,
  kLiveColours,
  kWordWrap,
  kShowBlanks,
  kRuler,
  kScrollMarks,
  kSecondView,
  kButtonWords,
  kProblems,
  // Window
  kNextDocument,
  kPreviousDocument,
  kLastUsedDocument,
  // Help
  kManual,
  kShortcuts,
  kAbout,
};

enum class MenuItemKind {
  kCommand,
  kToggle,   ///< has a mark while it is on
  kSubMenu,  ///< filled when it is opened
  kSeparator,
};

/// One item. It is the window's command, or the control's: an item of the popup menu, a button, or
/// an item of a button's drop-down.
struct MenuRow {
  Menu menu;
  MenuItemKind kind;
  const char* text = nullptr;  ///< with its mnemonic
  const char* keys = nullptr;  ///< as QKeySequence reads them, separated by "; "
  WindowCommand command = WindowCommand::kNone;
  const char* popupItem = nullptr;
  const char* button = nullptr;
  const char* dropDownItem = nullptr;  ///< of the button
};

/// A text or title of these tables, in the language of the window.
QString Translated(const char* caption);

/// In the order of the menu bar.
std::span<const MenuRow> MenuRows();

/// The title of a menu, with its mnemonic.
const char* TitleOf(Menu menu);

}  // namespace tessel
