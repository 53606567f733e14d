#include "host/OrphanedText.h"

#include <utility>

namespace tessel {

OrphanedText::OrphanedText(ucTessel& tessel) : tessel_(tessel) {
  DocumentList& documents = tessel_.OpenDocuments();
  subscriptions_ = {
      documents.AboutToDrop.Connect([this](const Document& document) { OnAboutToDrop(document); }),
      documents.Loaded.Connect([this](const Document& document) { OnLoaded(document); }),
      tessel_.CommandEnded.Connect([this] { OnCommandEnded(); }),
  };
}

void OrphanedText::OnAboutToDrop(const Document& document) {
  dropped_.reset();
  if (!document.IsFree() || !document.Modified() || document.Editor().Length() == 0) return;
  dropped_ = {document.Place(), document.Editor().Text()};
}

// A document that was closed with No is followed by no other in its slot.
void OrphanedText::OnLoaded(const Document& document) {
  if (!dropped_ || dropped_->slot != document.Place()) return;
  orphans_.push_back(std::move(dropped_->text));
  dropped_.reset();
}

void OrphanedText::OnCommandEnded() {
  dropped_.reset();
  for (const std::string& text : std::exchange(orphans_, {})) {
    const Slot inFront = tessel_.OpenDocuments().Current().Place();
    tessel_.ShowAsUntitled(text);
    tessel_.Run([&] { tessel_.OpenDocuments().Select(inFront); });
  }
}

}  // namespace tessel
