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
};

constexpr int kAltShift = Sci::SCMOD_ALT | Sci::SCMOD_SHIFT;
constexpr int kCtrlShift = Sci::SCMOD_CTRL | Sci::SCMOD_SHIFT;
constexpr ScintillaKey kUnboundKeys[] = {
    {'Z', Sci::SCMOD_CTRL},      {'Y', Sci::SCMOD_CTRL},     {'X', Sci::SCMOD_CTRL},
    {'C', Sci::SCMOD_CTRL},      {'V', Sci::SCMOD_CTRL},     {'L', Sci::SCMOD_CTRL},
    {'T', kCtrlShift},           {'U', Sci::SCMOD_CTRL},     {'U', kCtrlShift},
    {Sci::SCK_DOWN, kAltShift},  {Sci::SCK_UP, kAltShift},   {Sci::SCK_LEFT, kAltShift},
    {Sci::SCK_RIGHT, kAltShift}, {Sci::SCK_HOME, kAltShift}, {Sci::SCK_END, kAltShift},
    {Sci::SCK_PRIOR, kAltShift}, {Sci::SCK_NEXT, kAltShift},
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

void UnbindKeys(QsciScintillaBase& widget) {
  for (const ScintillaKey& key : kUnboundKeys) {
    widget.SendScintilla(Sci::SCI_CLEARCMDKEY,
                         static_cast<unsigned long>(key.code | key.modifiers << 16));
  }
}

bool IsPrintable(const QString& text) {
  return !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate());
}

bool IsTyping(const QKeyEvent& event) {
  return IsPrintable(event.text()) && CanType(event.modifiers());
}

std::string_view LineEndOfReturn(std::string_view text) {
  const auto at = text.find_first_of("\r\n");
  if (at == text.npos || text.substr(at, 2) == "\r\n") return "\r\n";
  return text.substr(at, 1);
}

void UseLineEndOf(std::string_view text, QsciScintillaBase& widget) {
  const std::string_view lineEnd = LineEndOfReturn(text);
  const int mode = lineEnd == "\n"   ? Sci::SC_EOL_LF
                   : lineEnd == "\r" ? Sci::SC_EOL_CR
                                     : Sci::SC_EOL_CRLF;
  widget.SendScintilla(Sci::SCI_SETEOLMODE, mode);
}

}  // namespace tessel
