#include "surface/DocumentList.h"

#include <algorithm>

#include "text/Text.h"

namespace tessel {

std::vector<Document> DocumentList::All() const {
  std::vector<Document> documents;
  documents.reserve(static_cast<std::size_t>(Count()));
  for (int slot = 0; slot < Count(); ++slot) documents.push_back(At(Slot{slot}));
  return documents;
}

std::optional<Document> DocumentList::WithPath(const std::string& path) const {
  const auto documents = All();
  const auto has = [&](const Document& document) { return document.HasPath(path); };
  const auto found = std::ranges::find_if(documents, has);
  return found == documents.end() ? std::nullopt : std::optional(*found);
}

Slot DocumentList::GetFreeEditorIndex() const {
  return At(Slot{0}).IsFree() ? Slot{0} : LoadNewEditor();
}

Slot DocumentList::LoadNewEditor() const {
  RichTextBox& editor = controls_.rtbCon.Load();
  editor.SetContainer(&controls_.picRtb);
  editor.SetTop(controls_.rtbCon[0].Top());
  editor.SetWidth(controls_.rtbCon[0].Width());
  editor.SetLeft(kParkedLeft);
  return Slot{editor.Index()};
}

void DocumentList::AddDocumentTab(const std::string& name) const {
  controls_.tbsRtb.Add({AsciiLower(name), {}, {}, kBlackDot});
}

void DocumentList::RemoveLast() const {
  const Document last = At(Slot{Count() - 1});
  controls_.rtbCon.UnloadLast();
  last.BecomeFree();
  controls_.tbsRtb.Remove(Count());
}

void DocumentList::RemoveBeyond(int count) const {
  while (controls_.rtbCon.Count() > count) controls_.rtbCon.UnloadLast();
  while (Count() > count) controls_.tbsRtb.Remove(Count());
}

}  // namespace tessel
