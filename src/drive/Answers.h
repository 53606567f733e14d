// What the person will answer to the next dialogs.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "services/Services.h"

namespace tessel::drive {

/// The paths chosen in a file dialog; none for its cancel button.
using ChosenFiles = std::vector<std::string>;

/// Queued answers, first in first out, one queue for each kind of dialog.
struct Answers {
  std::deque<ChosenFiles> open;
  std::deque<ChosenFiles> save;
  std::deque<MessageAnswer> message;
};

/// The front of a queue, taken off; nothing when it is empty.
template <class T>
std::optional<T> TakeNext(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  std::optional<T> next(std::move(queue.front()));
  queue.pop_front();
  return next;
}

}  // namespace tessel::drive
