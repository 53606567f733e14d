#include "posix/HomeDirectory.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace tessel::posix {

std::string HomeDirectory() {
  const char* const home = std::getenv("HOME");
  if (home != nullptr && *home == '/') return home;
  const passwd* const user = ::getpwuid(::getuid());
  if (user == nullptr || user->pw_dir == nullptr || *user->pw_dir != '/') return {};
  return user->pw_dir;
}

}  // namespace tessel::posix
