// What the editor's keys mean.
#pragma once

#include <QKeyCombination>
#include <QString>
#include <optional>
#include <string_view>

#include "text/TextTypes.h"

class QKeyEvent;
class QsciScintillaBase;

namespace tessel {

/// What the editor does itself at a key. All other keys are Scintilla's.
enum class EditorCommand {
  kUndo,
  kRedo,
  kCut,
  kCopy,
  kPaste,
  kLeaveForwards,
  kLeaveBackwards,
  kShowMenu,
};

std::optional<EditorCommand> CommandOf(QKeyCombination keys);

/// Gives Scintilla the keys that move, select and delete, and none of its others: those bypass the
/// model's undo and clipboard, make a rectangular selection, change case by Unicode's rules (which
/// can lead out of Windows-1252), or edit whole lines at a key that nobody asked for.
void BindKeys(QsciScintillaBase& widget);

/// True when the text is one that a key types, and no control character.
bool IsPrintable(const QString& text);
/// True when a key types its text.
bool IsTyping(const QKeyEvent& event);

/// What a key may type: nothing with Ctrl, Alt or Meta, but with AltGr what it says.
QString TextOfKey(const QKeyEvent& event);

/// The break that the Return key inserts into a text: the text's first one, else CR LF.
std::string_view LineEndOfReturn(std::string_view text);
/// The blanks and tabs that the caret's line begins with, up to the caret.
std::string_view IndentationAt(std::string_view text, Position caret);
/// Makes Scintilla's Return key insert that one.
void UseLineEndOf(std::string_view text, QsciScintillaBase& widget);

}  // namespace tessel
