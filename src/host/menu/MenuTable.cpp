#include "host/menu/MenuTable.h"

#include <QCoreApplication>

namespace tessel {
namespace {

using enum Menu;
using Do = WindowCommand;

constexpr MenuRow Line(Menu menu) { return {menu, MenuItemKind::kSeparator}; }
constexpr MenuRow Item(Menu menu, const char* text, const char* keys, Do command) {
  return {menu, MenuItemKind::kCommand, text, keys, command};
}
constexpr MenuRow Toggle(Menu menu, const char* text, const char* keys, Do command) {
  return {menu, MenuItemKind::kToggle, text, keys, command};
}
constexpr MenuRow SubMenu(Menu menu, const char* text, const char* keys, Do command) {
  return {menu, MenuItemKind::kSubMenu, text, keys, command};
}
/// An item that the control's popup menu has, too.
constexpr MenuRow Popup(Menu menu, const char* text, const char* keys, const char* item) {
  return {menu, MenuItemKind::kCommand, text, keys, Do::kNone, item};
}
constexpr MenuRow Button(Menu menu, const char* text, const char* keys, const char* button) {
  return {menu, MenuItemKind::kCommand, text, keys, Do::kNone, nullptr, button};
}
constexpr MenuRow TwoState(Menu menu, const char* text, const char* keys, const char* button) {
  return {menu, MenuItemKind::kToggle, text, keys, Do::kNone, nullptr, button};
}
constexpr MenuRow DropDown(Menu menu, const char* text, const char* button, const char* item) {
  return {menu, MenuItemKind::kCommand, text, nullptr, Do::kNone, nullptr, button, item};
}

// Outside of a class lupdate takes the namespace for the context.
#define TR(text) QT_TRANSLATE_NOOP("tessel", text)

constexpr MenuRow kMenuRows[] = {
    SubMenu(kFile, TR("&New"), "Ctrl+N", Do::kNew),
    Item(kFile, TR("&Open..."), "Ctrl+O", Do::kOpen),
    SubMenu(kFile, TR("Open &Recent"), nullptr, Do::kRecent),
    Line(kFile),
    Popup(kFile, TR("&Save"), "Ctrl+S", "mnuRtbPopupFileSave"),
    Popup(kFile, TR("Save &As..."), "Ctrl+Shift+S", "mnuRtbPopupFileSaveAs"),
    Line(kFile),
    Popup(kFile, TR("&Close"), "Ctrl+W; Ctrl+F4", "mnuRtbPopupFileClose"),
    Item(kFile, TR("Close O&thers"), nullptr, Do::kCloseOthers),
    Line(kFile),
    Item(kFile, TR("&Backups..."), nullptr, Do::kBackups),
    Toggle(kFile, TR("Reopen &Documents at Start"), nullptr, Do::kReopen),
    Toggle(kFile, TR("Allow Auto&mation by Other Programs"), nullptr, Do::kAutomation),
    Line(kFile),
    Item(kFile, TR("&Quit"), "Ctrl+Q", Do::kQuit),

    Item(kEdit, TR("&Undo"), "Ctrl+Z", Do::kUndo),
    Item(kEdit, TR("&Redo"), "Ctrl+Y; Ctrl+Shift+Z", Do::kRedo),
    Item(kEdit, TR("S&how Last Changes"), "F8", Do::kShowChanges),
    Line(kEdit),
    Popup(kEdit, TR("Cu&t"), "Ctrl+X", "mnuRtbPopupEditCut"),
    Popup(kEdit, TR("&Copy"), "Ctrl+C", "mnuRtbPopupEditCopy"),
    Popup(kEdit, TR("&Paste"), "Ctrl+V", "mnuRtbPopupEditPaste"),
    Popup(kEdit, TR("&Delete"), nullptr, "mnuRtbPopupEditDelete"),
    Popup(kEdit, TR("Select &All"), "Ctrl+A", "mnuRtbPopupEditSel"),
    Line(kEdit),
    Item(kEdit, TR("C&omment Lines On or Off"), "Ctrl+/", Do::kToggleComment),
    Line(kEdit),
    Item(kEdit, TR("Pr&eferences..."), "Ctrl+,", Do::kPreferences),

    Popup(kSearch, TR("&Find..."), "Ctrl+F", "mnuRtbPopupFind"),
    Popup(kSearch, TR("Find &Next"), "F3", "mnuRtbPopupFindNext"),
    Line(kSearch),
    Item(kSearch, TR("Find as You &Type"), "Ctrl+E", Do::kFindBar),
    Item(kSearch, TR("Next &Match"), "F4", Do::kNextMatch),
    Item(kSearch, TR("&Previous Match"), "Shift+F4", Do::kPreviousMatch),
    Item(kSearch, TR("&Replace..."), "Ctrl+R; Ctrl+H", Do::kReplace),
    Line(kSearch),
    Item(kSearch, TR("Go to &Line..."), "Ctrl+G", Do::kGoToLine),

    TwoState(kView, TR("&Settings Panel"), "Ctrl+Shift+P", "ShowTabs"),
    TwoState(kView, TR("&Colorize"), nullptr, "Colorize"),
    Toggle(kView, TR("&Live Colours"), nullptr, Do::kLiveColours),
    Line(kView),
    Item(kView, TR("Zoom &In"), "Ctrl++; Ctrl+=", Do::kZoomIn),
    Item(kView, TR("Zoom O&ut"), "Ctrl+-", Do::kZoomOut),
    Item(kView, TR("&Normal Size"), "Ctrl+0", Do::kZoomReset),
    Line(kView),
    Toggle(kView, TR("&Word Wrap"), nullptr, Do::kWordWrap),
    Toggle(kView, TR("Show &Blanks"), nullptr, Do::kShowBlanks),
    Toggle(kView, TR("&Ruler at Column 80"), nullptr, Do::kRuler),
    Toggle(kView, TR("Scroll Bar &Marks"), nullptr, Do::kScrollMarks),
    SubMenu(kView, TR("Second &View"), "F7", Do::kSecondView),
    Toggle(kView, TR("Wor&ds on the Toolbar"), nullptr, Do::kButtonWords),
    Toggle(kView, TR("&Problems"), "F5", Do::kProblems),

    Button(kGame, TR("Randomize &All Sections"), nullptr, "RandAll"),
    DropDown(kGame, TR("Randomize &Player Items"), "RandSec", "Player"),
    DropDown(kGame, TR("Randomize &Weapon Items"), "RandSec", "Weapon"),
    DropDown(kGame, TR("Randomize &Enemy Items"), "RandSec", "Enemy"),
    DropDown(kGame, TR("Randomize &Misc Items"), "RandSec", "Misc"),
    Line(kGame),
    Button(kGame, TR("&Convert to Version 1.5"), nullptr, "Convert"),

    Popup(kTools, TR("Comment &Block /* */"), nullptr, "mnuRtbPopupToolsMremark"),
    Popup(kTools, TR("Comment &Line //"), nullptr, "mnuRtbPopupToolsRremark"),
    Popup(kTools, TR("&Remove Remark"), nullptr, "mnuRtbPopupToolsUnremark"),
    Line(kTools),
    Popup(kTools, TR("&Uppercase"), nullptr, "mnuRtbPopupToolsUpper"),
    Popup(kTools, TR("Lo&wercase"), nullptr, "mnuRtbPopupToolsLower"),
    Popup(kTools, TR("&Indent"), nullptr, "mnuRtbPopupToolsIndent"),
    Line(kTools),
    Popup(kTools, TR("&Parameter Info"), nullptr, "mnuRtbPopupToolsParameters"),

    Item(kWindow, TR("&Next Document"), "Ctrl+PgDown", Do::kNextDocument),
    Item(kWindow, TR("&Previous Document"), "Ctrl+PgUp", Do::kPreviousDocument),
    Item(kWindow, TR("&Last Used Document"), "Ctrl+Tab", Do::kLastUsedDocument),

    Item(kHelp, TR("&Manual"), "F1", Do::kManual),
    Item(kHelp, TR("&Keyboard Shortcuts"), nullptr, Do::kShortcuts),
    Line(kHelp),
    Item(kHelp, TR("&About Zanth Manager"), nullptr, Do::kAbout),
};

struct MenuTitle {
  Menu menu;
  const char* title;
};

constexpr MenuTitle kTitles[] = {
    {kFile, TR("&File")}, {kEdit, TR("&Edit")},   {kSearch, TR("&Search")}, {kView, TR("&View")},
    {kGame, TR("&Game")}, {kTools, TR("&Tools")}, {kWindow, TR("&Window")}, {kHelp, TR("&Help")},
};

#undef TR

}  // namespace

QString Translated(const char* caption) { return QCoreApplication::translate("tessel", caption); }

std::span<const MenuRow> MenuRows() { return kMenuRows; }

const char* TitleOf(Menu menu) {
  for (const MenuTitle& row : kTitles) {
    if (row.menu == menu) return row.title;
  }
  return "";
}

}  // namespace tessel
