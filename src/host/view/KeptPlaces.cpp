#include "host/view/KeptPlaces.h"

#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

unsigned long LineAs(long line) { return static_cast<unsigned long>(line); }

}  // namespace

KeptPlaces::KeptPlaces(TesselWidget& control, Preferences& preferences)
    : control_(control), preferences_(preferences), documents_(control.Tessel().OpenDocuments()) {
  DocumentList& documents = control.Tessel().OpenDocuments();
  subscriptions_ = {
      documents.AboutToDrop.Connect([this](const Document& document) { Dropped(document); }),
      documents.Loaded.Connect([this](const Document& document) { Loaded(document); }),
      documents.Moved.Connect([this](Slot from, Slot to) { Moved(from, to); }),
      documents.Shown.Connect([this](const Document& document) { Shown(document); }),
  };
}

ScintillaView& KeptPlaces::ViewOf(const Document& document) const {
  return *qobject_cast<ScintillaView*>(control_.WidgetFor(document.Editor()));
}

// There may be a tab whose editor could not be made.
std::vector<Document> KeptPlaces::Open() const {
  std::vector<Document> open = documents_.All();
  std::erase_if(open, [this](const Document& document) {
    return Index(document.Place()) >= control_.Tessel().Controls().rtbCon.Count();
  });
  return open;
}

DocumentPlace KeptPlaces::PlaceOf(const Document& document) const {
  if (const auto it = waiting_.find(document.Place()); it != waiting_.end()) return it->second;
  const ScintillaView& view = ViewOf(document);
  const long top = view.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  return {document.Editor().SelStart(), document.Editor().Length(),
          view.SendScintilla(Sci::SCI_DOCLINEFROMVISIBLE, LineAs(top))};
}

void KeptPlaces::GoTo(const Document& document, const DocumentPlace& place) const {
  RichTextBox& editor = document.Editor();
  ScintillaView& view = ViewOf(document);
  editor.SelectByHand(std::min(place.caret, editor.Length()), 0);
  if (view.mirror().State() != MirrorState::kInStep) return;
  if (editor.Length() != place.length) {
    view.SendScintilla(Sci::SCI_SCROLLCARET);
    return;
  }
  view.SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE,
                     view.SendScintilla(Sci::SCI_VISIBLEFROMDOCLINE, LineAs(place.topLine)));
}

void KeptPlaces::KeepAll() {
  PlaceList places(preferences_.Text(Wish::kPlaces));
  for (const Document& document : Open()) {
    if (!document.Path().empty()) places.Put(document.Path(), PlaceOf(document));
  }
  preferences_.Set(Wish::kPlaces, places.Stored());
}

void KeptPlaces::Dropped(const Document& document) {
  before_.clear();
  for (const Document& open : Open()) before_[open.Place()] = PlaceOf(open);
  waiting_.erase(document.Place());
  if (document.Path().empty()) return;
  PlaceList places(preferences_.Text(Wish::kPlaces));
  places.Put(document.Path(), before_[document.Place()]);
  preferences_.Set(Wish::kPlaces, places.Stored());
}

void KeptPlaces::Loaded(const Document& document) {
  waiting_.erase(document.Place());
  const auto place = PlaceList(preferences_.Text(Wish::kPlaces)).Of(document.Path());
  if (place) GoTo(document, *place);
}

void KeptPlaces::Moved(Slot from, Slot to) {
  waiting_[to] = before_[from];
  waiting_.erase(from);
}

void KeptPlaces::Shown(const Document& document) {
  const auto it = waiting_.find(document.Place());
  if (it == waiting_.end()) return;
  const DocumentPlace place = it->second;
  waiting_.erase(it);
  GoTo(document, place);
}

}  // namespace tessel
