// The error that ends a command.
#pragma once

#include <stdexcept>

namespace tessel {

/// Ends the command that met it. what() is a sentence for the user that names the file or value and
/// the reason; ucTessel shows it once, at the command's outermost event.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tessel
