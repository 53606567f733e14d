#include "host/script/Navigator.h"

#include <algorithm>
#include <string>

#include "language/NameAt.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

Navigator::Navigator(TesselWidget& control, OpenScripts& scripts)
    : control_(control), documents_(control.Tessel().OpenDocuments()), scripts_(scripts) {
  subscriptions_ = {
      scripts_.Changed.Connect(
          [this](Slot slot, const ChangedRange& change) { history_.Changed(slot, change); }),
      documents_.AboutToDrop.Connect(
          [this](const Document& document) { history_.Dropped(document.Place()); }),
      documents_.Moved.Connect([this](Slot from, Slot to) { history_.Moved(from, to); }),
  };
}

Place Navigator::Here() const {
  const Document document = documents_.Current();
  return {document.Place(), document.Editor().SelStart()};
}

std::vector<Navigator::Found> Navigator::DefinitionsOf(
    std::string_view name, std::optional<language::Keyword> kind) const {
  struct Definition {
    Found found;
    std::optional<language::Keyword> keyword;
  };
  std::vector<Definition> all;
  const auto collect = [&](Slot slot) {
    for (const auto& use : language::DefinitionsOfName(scripts_.Of(slot), name)) {
      all.push_back({{slot, use.word}, use.keyword});
    }
  };
  const Slot current = documents_.Current().Place();
  collect(current);
  for (const Document& document : documents_.All()) {
    if (document.Place() != current) collect(document.Place());
  }
  language::KeepThoseOfKind(all, kind, [](const Definition& each) { return each.keyword; });
  std::vector<Found> found;
  found.reserve(all.size());
  for (const Definition& each : all) found.push_back(each.found);
  return found;
}

QString Navigator::GoToDefinition() {
  if (control_.Tessel().Running()) return {};
  const Place here = Here();
  const language::Script& script = scripts_.Of(here.slot);
  const auto word = language::NameAt(script, here.at);
  if (!word) return tr("There is no name at the caret.");
  const std::string name(script.Text(*word));
  const auto found = DefinitionsOf(name, language::KindOfName(script, *word));
  if (found.empty()) {
    return tr("\"%1\" is not defined in an open document.").arg(ShownName(name));
  }
  const auto atCaret = std::ranges::find(found, Found{here.slot, *word});
  const auto next =
      atCaret == found.end() || atCaret + 1 == found.end() ? found.begin() : atCaret + 1;
  if (next == atCaret) return tr("\"%1\" is defined here and nowhere else.").arg(ShownName(name));
  GoTo(next->slot, next->name);
  if (found.size() == 1) return {};
  return tr("Definition %1 of %2 of \"%3\"")
      .arg(next - found.begin() + 1)
      .arg(found.size())
      .arg(ShownName(name));
}

void Navigator::GoTo(Slot slot, language::Range piece) {
  if (control_.Tessel().Running()) return;
  history_.Leave(Here());
  Show(slot, piece);
}

void Navigator::GoBack() {
  if (control_.Tessel().Running()) return;
  if (const auto place = history_.Back(Here())) Show(place->slot, {place->at, place->at});
}

void Navigator::GoForward() {
  if (control_.Tessel().Running()) return;
  if (const auto place = history_.Forward(Here())) Show(place->slot, {place->at, place->at});
}

void Navigator::Show(Slot slot, language::Range piece) {
  control_.Tessel().Run([&] {
    if (slot != documents_.Current().Place()) documents_.Select(slot);
    documents_.At(slot).Editor().SelectByHand(piece.begin, piece.Length());
  });
  control_.CurrentEditorView()->setFocus(Qt::OtherFocusReason);
}

}  // namespace tessel
