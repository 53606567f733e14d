// What is selected when the randomizer is done.
#pragma once

#include <vector>

#include "control/ucTessel.h"

namespace tessel {

/// A walk of the randomizer ends with its last value selected and the text ready to be typed into:
/// the next key would replace the value. This leaves nothing selected after a command that looked
/// values up by itself.
class RandomizeEnd {
 public:
  explicit RandomizeEnd(ucTessel& tessel);

  /// A walk has ended; a command that only deselects comes next.
  Event<> Walked;

 private:
  void OnCommandEnded();

  ucTessel& tessel_;
  bool walked_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
