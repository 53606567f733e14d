#include "qt/editor/EditorKeys.h"

#include <Qsci/qsciscintillabase.h>

#include <QKeyEvent>
#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;
using enum EditorCommand;

struct KeyCommand {
  QKeyCombination keys;
  EditorCommand command;
};

constexpr KeyCommand kKeyCommands[] = {
    {Qt::CTRL | Qt::Key_Z, kUndo},
    {Qt::ALT | Qt::Key_Backspace, kUndo},
    {Qt::CTRL | Qt::Key_Y, kRedo},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, kRedo},
    {Qt::CTRL | Qt::Key_X, kCut},
    {Qt::SHIFT | Qt::Key_Delete, kCut},
    {Qt::CTRL | Qt::Key_C, kCopy},
    {Qt::CTRL | Qt::Key_Insert, kCopy},
    {Qt::CTRL | Qt::Key_V, kPaste},
    {Qt::SHIFT | Qt::Key_Insert, kPaste},
    {Qt::CTRL | Qt::Key_Tab, kLeaveForwards},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, kLeaveBackwards},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, kLeaveBackwards},
    {QKeyCombination(Qt::Key_Menu), kShowMenu},
    {Qt::SHIFT | Qt::Key_F10, kShowMenu},
};

struct ScintillaKey {
  int code;
  int modifiers;
  unsigned int command;
};

constexpr int kCtrl = Sci::SCMOD_CTRL;
constexpr int kShift = Sci::SCMOD_SHIFT;
constexpr int kCtrlShift = kCtrl | kShift;

constexpr ScintillaKey kScintillaKeys[] = {
    {Sci::SCK_DOWN, 0, Sci::SCI_LINEDOWN},
    {Sci::SCK_DOWN, kShift, Sci::SCI_LINEDOWNEXTEND},
    {Sci::SCK_DOWN, kCtrl, Sci::SCI_LINESCROLLDOWN},
    {Sci::SCK_UP, 0, Sci::SCI_LINEUP},
    {Sci::SCK_UP, kShift, Sci::SCI_LINEUPEXTEND},
    {Sci::SCK_UP, kCtrl, Sci::SCI_LINESCROLLUP},
    {Sci::SCK_LEFT, 0, Sci::SCI_CHARLEFT},
    {Sci::SCK_LEFT, kShift, Sci::SCI_CHARLEFTEXTEND},
    {Sci::SCK_LEFT, kCtrl, Sci::SCI_WORDLEFT},
    {Sci::SCK_LEFT, kCtrlShift, Sci::SCI_WORDLEFTEXTEND},
    {Sci::SCK_RIGHT, 0, Sci::SCI_CHARRIGHT},
    {Sci::SCK_RIGHT, kShift, Sci::SCI_CHARRIGHTEXTEND},
    {Sci::SCK_RIGHT, kCtrl, Sci::SCI_WORDRIGHT},
    {Sci::SCK_RIGHT, kCtrlShift, Sci::SCI_WORDRIGHTEXTEND},
    {Sci::SCK_HOME, 0, Sci::SCI_VCHOME},
    {Sci::SCK_HOME, kShift, Sci::SCI_VCHOMEEXTEND},
    {Sci::SCK_HOME, kCtrl, Sci::SCI_DOCUMENTSTART},
    {Sci::SCK_HOME, kCtrlShift, Sci::SCI_DOCUMENTSTARTEXTEND},
    {Sci::SCK_END, 0, Sci::SCI_LINEEND},
    {Sci::SCK_END, kShift, Sci::SCI_LINEENDEXTEND},
    {Sci::SCK_END, kCtrl, Sci::SCI_DOCUMENTEND},
    {Sci::SCK_END, kCtrlShift, Sci::SCI_DOCUMENTENDEXTEND},
    {Sci::SCK_PRIOR, 0, Sci::SCI_PAGEUP},
    {Sci::SCK_PRIOR, kShift, Sci::SCI_PAGEUPEXTEND},
    {Sci::SCK_NEXT, 0, Sci::SCI_PAGEDOWN},
    {Sci::SCK_NEXT, kShift, Sci::SCI_PAGEDOWNEXTEND},
    {Sci::SCK_DELETE, 0, Sci::SCI_CLEAR},
    {Sci::SCK_DELETE, kCtrl, Sci::SCI_DELWORDRIGHT},
    {Sci::SCK_BACK, 0, Sci::SCI_DELETEBACK},
    {Sci::SCK_BACK, kShift, Sci::SCI_DELETEBACK},
    {Sci::SCK_BACK, kCtrl, Sci::SCI_DELWORDLEFT},
    {Sci::SCK_INSERT, 0, Sci::SCI_EDITTOGGLEOVERTYPE},
    {Sci::SCK_TAB, 0, Sci::SCI_TAB},
    {Sci::SCK_TAB, kShift, Sci::SCI_BACKTAB},
    {Sci::SCK_RETURN, 0, Sci::SCI_NEWLINE},
    {Sci::SCK_RETURN, kShift, Sci::SCI_NEWLINE},
    {Sci::SCK_ESCAPE, 0, Sci::SCI_CANCEL},
    {'A', kCtrl, Sci::SCI_SELECTALL},
};

/// Windows and some X11 keymaps report AltGr as Ctrl+Alt.
bool CanType(Qt::KeyboardModifiers modifiers) {
  const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
  const bool alt = modifiers.testFlag(Qt::AltModifier);
  return ctrl == alt && !modifiers.testFlag(Qt::MetaModifier);
}

}  // namespace

std::optional<EditorCommand> CommandOf(QKeyCombination keys) {
  const auto* it = std::ranges::find(kKeyCommands, keys, &KeyCommand::keys);
  return it == std::ranges::end(kKeyCommands) ? std::nullopt : std::optional(it->command);
}

void BindKeys(QsciScintillaBase& widget) {
  widget.SendScintilla(Sci::SCI_CLEARALLCMDKEYS);
  for (const ScintillaKey& key : kScintillaKeys) {
    widget.SendScintilla(Sci::SCI_ASSIGNCMDKEY,
                         static_cast<unsigned long>(key.code | key.modifiers << 16),
                         static_cast<long>(key.command));
  }
}

bool IsPrintable(const QString& text) {
  return !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate());
}

bool IsTyping(const QKeyEvent& event) {
  return IsPrintable(event.text()) && CanType(event.modifiers());
}

QString TextOfKey(const QKeyEvent& event) {
  constexpr Qt::KeyboardModifiers kShortcut =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const bool types = (event.modifiers() & kShortcut) == 0 || IsTyping(event);
  return types ? event.text() : QString();
}

std::string_view LineEndOfReturn(std::string_view text) {
  const auto at = text.find_first_of("\r\n");
  if (at == text.npos || text.substr(at, 2) == "\r\n") return "\r\n";
  return text.substr(at, 1);
}

std::string_view IndentationAt(std::string_view text, Position caret) {
  const std::string_view before = text.substr(0, static_cast<std::size_t>(caret));
  const std::string_view line = before.substr(before.find_last_of("\r\n") + 1);
  return line.substr(0, std::min(line.find_first_not_of(" \t"), line.size()));
}

void UseLineEndOf(std::string_view text, QsciScintillaBase& widget) {
  const std::string_view lineEnd = LineEndOfReturn(text);
  const int mode = lineEnd == "\n"   ? Sci::SC_EOL_LF
                   : lineEnd == "\r" ? Sci::SC_EOL_CR
                                     : Sci::SC_EOL_CRLF;
  widget.SendScintilla(Sci::SCI_SETEOLMODE, mode);
}

}  // namespace tessel
