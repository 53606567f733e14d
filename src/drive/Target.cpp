#include "drive/Target.h"

#include <algorithm>

#include "drive/Refusal.h"
#include "surface/CurrentEditor.h"

namespace tessel::drive {
namespace {

const ControlSet* OpenFormWith(Stage& stage, const std::string& name) {
  if (stage.OpenForms().empty()) return nullptr;
  const ControlSet& own = stage.OpenForms().back()->controls;
  const bool has =
      std::ranges::any_of(own.All(), [&](const Control* c) { return c->Name() == name; });
  return has ? &own : nullptr;
}

bool StandsBehindForm(Stage& stage, const Control& control) {
  if (stage.OpenForms().empty()) return false;
  const auto& own = stage.OpenForms().back()->controls.All();
  return std::ranges::find(own, &control) == own.end();
}

}  // namespace

Control& NamedControl(Stage& stage, const Fields& fields) {
  const std::string name = fields.Text("control");
  const auto index = fields.OptionalWhole("index");
  const ControlSet* set = OpenFormWith(stage, name);
  if (set == nullptr) {
    if (name == "rtbCon") return NamedEditor(stage, fields);
    set = &stage.Tessel().Controls().all;
  }
  Control* control = set->Find(name, index.value_or(0));
  if (control == nullptr) throw Refusal("unknown control");
  return *control;
}

Control& GestureTarget(Stage& stage, const Fields& fields) {
  Control& control = NamedControl(stage, fields);
  if (StandsBehindForm(stage, control)) throw Refusal("modal");
  RefuseUnusable(control);
  return control;
}

RichTextBox& NamedEditor(Stage& stage, const Fields& fields) {
  HostedControls& controls = stage.Tessel().Controls();
  const int index = fields.OptionalWhole("index").value_or(Index(CurrentDocIndex(controls)));
  if (index < 0 || index >= controls.rtbCon.Count()) throw Refusal("unknown control");
  return controls.rtbCon[index];
}

RichTextBox& GestureEditor(Stage& stage, const Fields& fields) {
  RichTextBox& editor = NamedEditor(stage, fields);
  RefuseBehindForm(stage);
  RefuseUnusable(editor);
  return editor;
}

void RefuseBehindForm(Stage& stage) {
  if (!stage.OpenForms().empty()) throw Refusal("modal");
}

void RefuseUnusable(const Control& control) {
  if (!control.Usable()) throw Refusal("disabled");
}

}  // namespace tessel::drive
