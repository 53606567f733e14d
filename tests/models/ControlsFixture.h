// What the tests of the hosted controls' models share. They tell which assignments and gestures
// raise which events.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Event.h"
#include "models/Control.h"

namespace tessel::test {

/// Counts how often an event was raised.
template <class... Args>
class Count {
 public:
  explicit Count(Event<Args...>& event)
      : subscription_(event.Connect([this](Args...) { ++count_; })) {}
  Count(const Count&) = delete;
  Count& operator=(const Count&) = delete;

  operator int() const { return count_; }

 private:
  int count_ = 0;
  Subscription subscription_;
};

class ControlsTest : public testing::Test {
 protected:
  ControlSet controls;
};

}  // namespace tessel::test
