#include "host/view/ScrollMarks.h"

#include "host/view/ChangeBars.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

/// Who types goes on typing.
constexpr int kLaterMilliseconds = 100;

const std::vector<TextMatch> kNoMatches;

MarkStrip* StripOf(const ScintillaView& view) {
  return view.findChild<MarkStrip*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

ScrollMarks::ScrollMarks(TesselWidget& control, MainMenu& menu, Preferences& preferences,
                         const FindBar& find)
    : QObject(&menu),
      control_(control),
      preferences_(preferences),
      search_(find.Search()),
      changes_(control.Tessel()),
      editors_(control) {
  menu.OnToggle(WindowCommand::kScrollMarks, Wanted(),
                [this](bool on) { preferences_.Set(Wish::kScrollMarks, on ? 1 : 0); });
  later_.setSingleShot(true);
  later_.setInterval(kLaterMilliseconds);
  connect(&later_, &QTimer::timeout, this, &ScrollMarks::ShowChanges);
  connect(&control_, &TesselWidget::caretMoved, this, &ScrollMarks::FollowCaret);
  connect(&search_, &DocumentSearch::changed, this, &ScrollMarks::ShowMatches);
  subscriptions_.push_back(preferences_.Changed.Connect([this, &menu](Wish wish) {
    if (wish != Wish::kScrollMarks) return;
    menu.Action(WindowCommand::kScrollMarks).setChecked(Wanted());
    Apply();
  }));
  subscriptions_.push_back(changes_.Changed.Connect([this](Slot) {
    if (!later_.isActive()) later_.start();
  }));
  subscriptions_.push_back(
      control_.Tessel().OpenDocuments().Shown.Connect([this](const Document&) { later_.start(); }));
  editors_.Always([this](ScintillaView& view) { Add(view); });
}

void ScrollMarks::Add(ScintillaView& view) {
  auto* strip = new MarkStrip(view);
  connect(strip, &MarkStrip::wanted, this,
          [this, &view](Position start, Position end) { GoTo(view, start, end); });
  strip->SetWanted(Wanted());
  ShowChangeBars(view, Wanted());
}

void ScrollMarks::Apply() {
  editors_.Do([this](ScintillaView& view) {
    StripOf(view)->SetWanted(Wanted());
    ShowChangeBars(view, Wanted());
  });
  ShowChanges();
  ShowMatches();
}

MarkStrip* ScrollMarks::CurrentStrip() const {
  const ScintillaView* view = control_.CurrentEditorView();
  return view == nullptr ? nullptr : StripOf(*view);
}

// It scrolls, too, and other lines have come into sight.
void ScrollMarks::FollowCaret() {
  if (!Wanted() || CurrentStrip() == nullptr) return;
  CurrentStrip()->FollowCaret();
  FollowChanges(*control_.CurrentEditorView(),
                changes_.Of(control_.Tessel().OpenDocuments().Current().Place()));
}

void ScrollMarks::ShowChanges() {
  if (!Wanted() || CurrentStrip() == nullptr) return;
  CurrentStrip()->SetChanges(changes_.Of(control_.Tessel().OpenDocuments().Current().Place()));
  FollowCaret();
}

// What was found before stands until the count is over.
void ScrollMarks::ShowMatches() {
  if (search_.Now() == DocumentSearch::State::kSearching) return;
  const ScintillaView* current = control_.CurrentEditorView();
  editors_.Do([&](const ScintillaView& view) {
    MarkStrip* strip = StripOf(view);
    if (strip != nullptr) strip->SetMatches(&view == current ? search_.Matches() : kNoMatches);
  });
}

void ScrollMarks::GoTo(ScintillaView& view, Position start, Position end) {
  if (control_.Tessel().Running() || &view != control_.CurrentEditorView()) return;
  control_.Tessel().OpenDocuments().CurrentEditor().SelectByHand(start, end - start);
  view.SendScintilla(Sci::SCI_VERTICALCENTRECARET);
  view.setFocus(Qt::MouseFocusReason);
}

}  // namespace tessel
