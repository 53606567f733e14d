#include "host/view/LiveColouring.h"

namespace tessel {
namespace {

constexpr const char* kColorize = "Colorize";

}  // namespace

LiveColouring::LiveColouring(TesselWidget& control, MainMenu& menu, Preferences& preferences)
    : QObject(&menu),
      preferences_(preferences),
      toolbar_(control.Tessel().Controls().tbToolBar),
      documents_(control.Tessel().OpenDocuments()),
      control_(control) {
  menu.OnToggle(WindowCommand::kLiveColours, preferences_.Wants(Wish::kLiveColours),
                [this](bool wanted) { preferences_.Set(Wish::kLiveColours, wanted ? 1 : 0); });
  ListenToDocuments();
  subscriptions_.push_back(preferences_.Changed.Connect([this, &menu](Wish wish) {
    if (wish != Wish::kLiveColours) return;
    menu.Action(WindowCommand::kLiveColours).setChecked(preferences_.Wants(wish));
    released_.clear();
    Apply();
    ShowOnButton();
  }));
  subscriptions_.push_back(
      toolbar_.ButtonClick.Connect([this](const ToolbarButton& button) { ButtonPressed(button); }));
  Apply();
}

void LiveColouring::ListenToDocuments() {
  subscriptions_ = {
      documents_.AboutToDrop.Connect([this](const Document& document) { Dropped(document); }),
      documents_.Loaded.Connect([this](const Document& document) { Loaded(document); }),
      documents_.Moved.Connect([this](Slot from, Slot to) { Moved(from, to); }),
      documents_.Shown.Connect([this](const Document&) {
        reloading_.reset();
        Apply();
        ShowOnButton();
      })};
}

// The control has done its part already: the button stands as it is wanted.
void LiveColouring::ButtonPressed(const ToolbarButton& button) {
  if (button.key != kColorize) return;
  const Slot slot = documents_.Current().Place();
  if (toolbar_.Pressed(kColorize)) {
    released_.erase(slot);
  } else {
    released_.insert(slot);
  }
  Apply();
}

// A document that is read from its file again keeps its colours as they are.
void LiveColouring::Dropped(const Document& document) {
  const bool wasReleased = released_.erase(document.Place()) > 0;
  reloading_.reset();
  if (wasReleased && !document.Path().empty()) {
    reloading_.emplace(document.Place(), document.Path());
  }
  Apply();
}

void LiveColouring::Loaded(const Document& document) {
  if (reloading_ == std::pair(document.Place(), document.Path())) {
    released_.insert(document.Place());
  }
  reloading_.reset();
  Apply();
  ShowOnButton();
}

void LiveColouring::Moved(Slot from, Slot to) {
  if (released_.erase(from) > 0) {
    released_.insert(to);
  } else {
    released_.erase(to);
  }
}

void LiveColouring::Apply() {
  for (const Document& document : documents_.All()) {
    auto* view = qobject_cast<ScintillaView*>(control_.WidgetFor(document.Editor()));
    view->SetLiveColours(IsLive(document));
  }
}

bool LiveColouring::IsLive(const Document& document) const {
  return preferences_.Wants(Wish::kLiveColours) && !released_.contains(document.Place());
}

// The control has it stand as its own colours are, when it shows a document. On the start tab it
// says what becomes of the next file.
void LiveColouring::ShowOnButton() {
  const Document document = documents_.Current();
  if (document.IsFree()) return;
  toolbar_.SetPressed(kColorize, IsLive(document) || document.Mode() == ColourMode::kColoured);
}

}  // namespace tessel
