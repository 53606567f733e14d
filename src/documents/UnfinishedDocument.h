// A document that is being opened, until its text is in it.
#pragma once

#include "surface/DocumentList.h"

namespace tessel {

/// Made before the document gets its editor and its tab. When memory ends before it is finished,
/// both go again, and the start tab is as it was: no tab has a file's path without its text.
class UnfinishedDocument {
 public:
  explicit UnfinishedDocument(const DocumentList& list);
  ~UnfinishedDocument();
  UnfinishedDocument(const UnfinishedDocument&) = delete;
  UnfinishedDocument& operator=(const UnfinishedDocument&) = delete;

  void Finish() { finished_ = true; }

 private:
  const DocumentList& list_;
  int count_;
  Tab start_;
  bool finished_ = false;
};

}  // namespace tessel
