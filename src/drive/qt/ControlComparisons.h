// What the widget of each kind of control has to show. Each function compares what a model holds
// with what its widget shows; places and states are PlaceComparison's.
#pragma once

#include <QWidget>

#include "drive/qt/Comparison.h"
#include "models/Buttons.h"
#include "models/Lists.h"
#include "models/PopupMenu.h"
#include "models/RichTextBox.h"
#include "models/TabStrip.h"
#include "models/TextBox.h"
#include "models/Toolbar.h"

namespace tessel::drive {

void CompareCommandButton(const CommandButton& model, QWidget& widget, Comparison& comparison);
void CompareCheckBox(const CheckBox& model, QWidget& widget, Comparison& comparison);
void CompareOptionButton(const OptionButton& model, QWidget& widget, Comparison& comparison);
void CompareLabel(const Label& model, QWidget& widget, Comparison& comparison);
void CompareTextBox(const TextBox& model, QWidget& widget, Comparison& comparison);
void CompareListBox(const ListBox& model, QWidget& widget, Comparison& comparison);
void CompareComboBox(const ComboBox& model, QWidget& widget, Comparison& comparison);
void CompareTabStrip(const TabStrip& model, QWidget& widget, Comparison& comparison);
void CompareToolbar(const Toolbar& model, QWidget& widget, Comparison& comparison);
void ComparePopupMenu(const PopupMenu& model, QWidget& widget, Comparison& comparison);
/// Text, selection, and the colours of what is in sight, as they are painted.
void CompareEditor(const RichTextBox& model, QWidget& widget, Comparison& comparison);

}  // namespace tessel::drive
