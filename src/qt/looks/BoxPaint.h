// Edges and faces of boxes, lists, buttons, menus and groups.
#pragma once

#include <QPainter>
#include <QStyleOption>

namespace tessel {

/// Every edge has a contrast of 3:1 or more with what lies on either side of it, on light and dark;
/// the part that has the focus has an edge of the accent's colour, twice as wide.

/// A box with a text in it: the line edit, the combo box, the spin box.
void PaintTextBox(QPainter& painter, const QStyleOption& option);

/// The edge alone, around what has been painted already.
void PaintTextBoxEdge(QPainter& painter, const QStyleOption& option);

/// A button with words.
void PaintButtonFace(QPainter& painter, const QStyleOption& option, bool isDefault);

/// Lists, trees, scrolled texts, the drop-down of a combo box.
void PaintListEdge(QPainter& painter, const QStyleOption& option);

/// A menu's ground and edge.
void PaintMenuPanel(QPainter& painter, const QStyleOption& option);

/// The frame below the title of a group, which is as high as `title`.
void PaintGroupEdge(QPainter& painter, const QStyleOption& option, int title);

/// The arrow that points at what drops down.
void PaintDropArrow(QPainter& painter, const QRect& rect, const QColor& ink);

}  // namespace tessel
