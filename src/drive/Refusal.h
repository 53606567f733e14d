// Why a command was not carried out.
#pragma once

#include <stdexcept>

namespace tessel::drive {

/// Ends a command before it changed anything; what() becomes the reply's "error", as bytes.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tessel::drive
