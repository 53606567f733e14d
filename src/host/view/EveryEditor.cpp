#include "host/view/EveryEditor.h"

namespace tessel {

EveryEditor::EveryEditor(TesselWidget& control) : control_(control) {
  loaded_ = control_.Tessel().Controls().rtbCon.Loaded.Connect([this](RichTextBox& editor) {
    for (const Visit& visit : always_) visit(*ViewOf(editor));
  });
}

ScintillaView* EveryEditor::ViewOf(const RichTextBox& editor) const {
  return qobject_cast<ScintillaView*>(control_.WidgetFor(editor));
}

void EveryEditor::Do(const Visit& visit) const {
  auto& editors = control_.Tessel().Controls().rtbCon;
  for (int i = 0; i < editors.Count(); ++i) visit(*ViewOf(editors[i]));
}

void EveryEditor::Always(const Visit& visit) {
  always_.push_back(visit);
  Do(visit);
}

}  // namespace tessel
