// What the control did, in order.
#pragma once

#include <string_view>
#include <utility>

#include "drive/Json.h"

namespace tessel::drive {

/// Collects the events of the reply that is due.
class EventLog {
 public:
  /// `details` is an object; the event's name comes before its members.
  void Add(std::string_view event, const Json& details) {
    Json entry{{"event", event}};
    entry.update(details);
    events_.push_back(std::move(entry));
  }

  /// All events since the last call, as an array.
  Json Take() { return std::exchange(events_, Json::array()); }

 private:
  Json events_ = Json::array();
};

}  // namespace tessel::drive
