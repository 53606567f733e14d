// Restoring state beside the change of it.
#pragma once

#include <utility>

namespace tessel {

/// Runs a function when the scope ends, however it ends.
template <class Function>
class ScopeGuard {
 public:
  explicit ScopeGuard(Function function) : function_(std::move(function)) {}
  ~ScopeGuard() { function_(); }
  ScopeGuard(const ScopeGuard&) = delete;
  ScopeGuard& operator=(const ScopeGuard&) = delete;

 private:
  Function function_;
};

/// A flag that is set while this lives.
class BusyFlag {
 public:
  explicit BusyFlag(bool& flag) : flag_(flag) { flag_ = true; }
  ~BusyFlag() { flag_ = false; }
  BusyFlag(const BusyFlag&) = delete;
  BusyFlag& operator=(const BusyFlag&) = delete;

 private:
  bool& flag_;
};

}  // namespace tessel
