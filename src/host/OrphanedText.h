// Text in no file that a command loads another text over.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "control/ucTessel.h"

namespace tessel {

/// The control takes the start tab for free although a person may have typed into it, and loads the
/// next file over that text. This brings such a text back when the command has ended, as a modified
/// "Untitled" document behind the opened one, which stays in front.
class OrphanedText {
 public:
  explicit OrphanedText(ucTessel& tessel);

 private:
  struct Dropped {
    Slot slot;
    std::string text;
  };

  void OnAboutToDrop(const Document& document);
  void OnLoaded(const Document& document);
  void OnCommandEnded();

  ucTessel& tessel_;
  std::optional<Dropped> dropped_;  // not yet known whether it was closed or loaded over
  std::vector<std::string> orphans_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
