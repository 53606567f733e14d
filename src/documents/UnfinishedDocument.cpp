#include "documents/UnfinishedDocument.h"

#include <new>

namespace tessel {

UnfinishedDocument::UnfinishedDocument(const DocumentList& list)
    : list_(list), count_(list.Count()), start_(list.At(Slot{0}).TabNow()) {}

UnfinishedDocument::~UnfinishedDocument() {
  if (finished_) return;
  try {
    list_.RemoveBeyond(count_);
    list_.At(Slot{0}).PutTab(start_);
  } catch (const std::bad_alloc&) {
    // Somebody who draws the tabs has no memory either. They are right; the drawing follows.
  }
}

}  // namespace tessel
