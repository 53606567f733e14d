// A list of handlers that a model calls when something happened to it.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessel {

/// Keeps one handler connected: the handler is called for as long as this lives.
using Subscription = std::shared_ptr<void>;

/// An event of a model, raised synchronously: Raise returns when every handler has run.
/// Handlers run in the order in which they were connected; they may connect and drop others
/// meanwhile. A dropped handler is not called again; what it holds is freed with a later Raise.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  [[nodiscard]] Subscription Connect(Handler handler) {
    auto slot = std::make_shared<Slot>(Slot{std::move(handler)});
    slots_.push_back(slot);
    Slot* dropped = slot.get();
    return Subscription(dropped, [slot = std::move(slot)](Slot*) { slot->connected = false; });
  }

  // A pass over a text raises thousands of events, most of them for nobody or for a handler that
  // has little to do: a look at a flag is all that a handler costs beside its own call.
  void Raise(Args... args) {
    if (slots_.empty()) return;
    ++raising_;
    const Depth depth{raising_};
    bool dropped = false;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      Slot& slot = *slots_[i];  // stays where it is when a handler connects another
      if (slot.connected) slot.handler(args...);
      dropped |= !slot.connected;
    }
    if (dropped && raising_ == 1) {
      std::erase_if(slots_, [](const auto& slot) { return !slot->connected; });
    }
  }

 private:
  struct Slot {
    Handler handler;
    bool connected = true;
  };
  struct Depth {
    int& count;
    ~Depth() { --count; }
  };

  std::vector<std::shared_ptr<Slot>> slots_;
  int raising_ = 0;
};

}  // namespace tessel
