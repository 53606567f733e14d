// Controls of one name, told apart by their index.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "models/Control.h"

namespace tessel {

/// A control array: elements 0 to Count() − 1, dense. Elements can be added and taken off at the
/// end at run time.
template <class T>
class ControlArray {
 public:
  ControlArray(ControlSet& set, std::string name, int count) : set_(set), name_(std::move(name)) {
    for (int i = 0; i < count; ++i) Add();
  }

  int Count() const { return static_cast<int>(elements_.size()); }
  T& operator[](int index) { return *elements_.at(static_cast<std::size_t>(index)); }
  const T& operator[](int index) const { return *elements_.at(static_cast<std::size_t>(index)); }

  /// Adds the element with the next index and announces it.
  T& Load() {
    T& element = Add();
    Loaded.Raise(element);
    return element;
  }

  /// Announces that the last element goes, and destroys it.
  void UnloadLast() {
    Unloading.Raise(*elements_.back());
    elements_.pop_back();
  }

  Event<T&> Loaded;
  Event<T&> Unloading;

 private:
  T& Add() {
    elements_.push_back(std::make_unique<T>(set_, name_, Count()));
    return *elements_.back();
  }

  ControlSet& set_;
  std::string name_;
  std::vector<std::unique_ptr<T>> elements_;
};

}  // namespace tessel
