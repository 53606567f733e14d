#include "host/panel/ReplacementOutline.h"

#include <QApplication>
#include <algorithm>
#include <vector>

#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

/// The controls from which text goes into the document.
std::vector<const Control*> WritingControls(const HostedControls& c) {
  std::vector<const Control*> controls = {&c.txtMap, &c.txtTitle, &c.lstWords};
  for (int i = 0; i < c.cmbweap.Count(); ++i) controls.push_back(&c.cmbweap[i]);
  for (int i = 0; i < c.cmdInsert.Count(); ++i) controls.push_back(&c.cmdInsert[i]);
  return controls;
}

}  // namespace

ReplacementOutline::ReplacementOutline(TesselWidget& control)
    : QObject(&control), control_(control) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { FocusMoved(now); });
  connect(&control_, &TesselWidget::documentChanged, this, &ReplacementOutline::Update);
}

// A box, a list that drops down and another program take the focus for a while only.
void ReplacementOutline::FocusMoved(QWidget* to) {
  if (to == nullptr || to->window() != control_.window()) return;
  focused_ = Writes(to);
  Update();
}

bool ReplacementOutline::Writes(const QWidget* widget) const {
  return std::ranges::any_of(WritingControls(control_.Tessel().Controls()),
                             [&](const Control* control) {
                               const QWidget* part = control_.WidgetFor(*control);
                               return part == widget || (part && part->isAncestorOf(widget));
                             });
}

void ReplacementOutline::SetAsking(bool asking) {
  asking_ = asking;
  Update();
}

void ReplacementOutline::Update() {
  ScintillaView* wanted = focused_ || asking_ ? control_.CurrentEditorView() : nullptr;
  if (wanted == outlined_) return;
  if (outlined_ != nullptr) outlined_->OutlineSelection(false);
  if (wanted != nullptr) wanted->OutlineSelection(true);
  outlined_ = wanted;
}

}  // namespace tessel
