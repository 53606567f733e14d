// How a Scintilla widget becomes the editor, and how it looks.
#pragma once

#include "qt/editor/EditorTheme.h"

class QsciScintillaBase;

namespace tessel {

/// What holds for as long as the widget lives: the text stays as it stands, there is one selection,
/// keys, font and what a screen reader is told.
void SetUpEditor(QsciScintillaBase& widget);

/// The family, or the desktop's fixed font where that is empty; the size, or the desktop's where
/// that is 0. The styles take it over when they are painted next.
void SetUpFont(QsciScintillaBase& widget, const QString& family, int points);

/// The theme of the widget's palette, for its state.
EditorTheme ThemeOfWidget(const QsciScintillaBase& widget);
/// Paints everything but the text's colours, whose styles get the text's colour.
void PaintEditor(QsciScintillaBase& widget, const EditorTheme& theme);

}  // namespace tessel
