#include "drive/qt/WidgetComparison.h"

#include <algorithm>

#include "drive/qt/ControlComparisons.h"
#include "models/CommonDialog.h"
#include "models/Form.h"
#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/base/TwipScale.h"

namespace tessel::drive {
namespace {

using Compare = bool (*)(const Control&, QWidget&, Comparison&);

/// Compares a control of that kind; false when it is none.
template <class Model, void (*CompareKind)(const Model&, QWidget&, Comparison&)>
bool As(const Control& control, QWidget& widget, Comparison& comparison) {
  const auto* model = dynamic_cast<const Model*>(&control);
  if (model != nullptr) CompareKind(*model, widget, comparison);
  return model != nullptr;
}

constexpr Compare kKinds[] = {
    As<CommandButton, CompareCommandButton>,
    As<CheckBox, CompareCheckBox>,
    As<OptionButton, CompareOptionButton>,
    As<Label, CompareLabel>,
    As<TextBox, CompareTextBox>,
    As<ListBox, CompareListBox>,
    As<ComboBox, CompareComboBox>,
    As<TabStrip, CompareTabStrip>,
    As<Toolbar, CompareToolbar>,
    As<RichTextBox, CompareEditor>,
};

template <class... Kinds>
bool IsOneOf(const Control& control) {
  return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

bool HasPlace(const Control& control) {
  return IsOneOf<Toolbar, TabStrip, PictureBox, Frame, RichTextBox>(control);
}

/// The widget that stands where the control stands: of a tab strip, what holds its row of tabs.
QWidget& WholeOf(const Control& control, QWidget& widget) {
  return IsOneOf<TabStrip>(control) ? *widget.parentWidget() : widget;
}

void CompareState(const Control& control, QWidget& widget, Comparison& comparison) {
  QWidget& whole = WholeOf(control, widget);
  comparison.Expect("visible", InSight(control), !whole.isHidden() && !widget.isHidden());
  comparison.Expect("enabled", control.Enabled(), whole.isEnabledTo(whole.parentWidget()));
  if (HasPlace(control) && whole.isVisible()) {
    comparison.Expect("place", PixelGeometry(control, whole), whole.geometry());
  }
}

void CompareControl(const Control& control, QWidget* widget, std::vector<Difference>& found) {
  const std::string index = control.Index() > 0 ? " " + std::to_string(control.Index()) : "";
  Comparison comparison(control.Name() + index, found);
  if (widget == nullptr) return comparison.Note("widget", "one", "missing");
  if (const auto* menu = dynamic_cast<const PopupMenu*>(&control)) {
    return ComparePopupMenu(*menu, *widget, comparison);
  }
  CompareState(control, *widget, comparison);
  if (IsOneOf<RichTextBox>(control) && !widget->isVisible()) return;
  std::ranges::any_of(kKinds,
                      [&](Compare compare) { return compare(control, *widget, comparison); });
}

void CompareControls(const ControlSet& controls, const TesselWidget& tessel,
                     std::vector<Difference>& found) {
  for (const Control* control : controls.All()) {
    if (IsOneOf<Timer, CommonDialog>(*control)) continue;
    CompareControl(*control, tessel.WidgetFor(*control), found);
  }
}

void CompareForm(const Form& form, const TesselWidget& tessel, std::vector<Difference>& found) {
  Comparison comparison(form.Name(), found);
  const QWidget* dialog = tessel.DialogFor(form);
  if (dialog == nullptr) return comparison.Note("widget", "a dialog", "missing");
  comparison.Expect("visible", form.Visible(), dialog->isVisible());
  if (!form.Visible()) return;
  comparison.Expect("caption", ShownText(form.Caption()), dialog->windowTitle());
  CompareControls(form.controls, tessel, found);
}

}  // namespace

std::vector<Difference> CompareWidgets(const TesselWidget& widget) {
  std::vector<Difference> found;
  const HostedControls& controls = widget.Tessel().Controls();
  const QSize size(TwipsToPixels(controls.scaleWidth, widget.logicalDpiX()),
                   TwipsToPixels(controls.scaleHeight, widget.logicalDpiY()));
  Comparison("ucTessel", found).Expect("size", QRect({0, 0}, size), widget.rect());
  CompareControls(controls.all, widget, found);
  for (const Form* form : widget.Tessel().Forms()) CompareForm(*form, widget, found);
  return found;
}

}  // namespace tessel::drive
