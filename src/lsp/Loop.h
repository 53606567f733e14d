// The server on standard input and output, or any two descriptors.
#pragma once

#include <chrono>

#include "lsp/features/Session.h"

namespace tessel::lsp {

struct LoopOptions {
  int input = 0;
  int output = 1;
  /// How long nothing changes before a check begins.
  std::chrono::milliseconds pause{200};
};

/// Answers until the client says that it is over, has gone, or sends what is no message. Checks run
/// on a thread of their own meanwhile. Returns the exit status: 0 where the client had asked to
/// shut down.
int RunServer(Resources resources, const LoopOptions& options = {});

}  // namespace tessel::lsp
