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
/// meanwhile.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  [[nodiscard]] Subscription Connect(Handler handler) {
    auto shared = std::make_shared<Handler>(std::move(handler));
    handlers_.push_back(shared);
    return shared;
  }

  void Raise(Args... args) {
    ++raising_;
    const Depth depth{raising_};
    for (std::size_t i = 0; i < handlers_.size(); ++i) {
      if (const auto handler = handlers_[i].lock()) (*handler)(args...);
    }
    if (raising_ == 1) {
      std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
    }
  }

 private:
  struct Depth {
    int& count;
    ~Depth() { --count; }
  };

  std::vector<std::weak_ptr<Handler>> handlers_;
  int raising_ = 0;
};

}  // namespace tessel
