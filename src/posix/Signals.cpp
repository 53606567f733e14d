#include "posix/Signals.h"

#include <csignal>

namespace tessel::posix {

void TakeSizeLimitsAsErrors() { std::signal(SIGXFSZ, SIG_IGN); }

}  // namespace tessel::posix
