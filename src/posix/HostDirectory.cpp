#include "posix/HostDirectory.h"

#include <filesystem>
#include <system_error>

namespace tessel {

std::string DefaultHostDirectory() {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  const fs::path installed = (program.parent_path() / TESSEL_DATA_FROM_PROGRAM).lexically_normal();
  return !error && fs::is_directory(installed, error) ? installed.string() : TESSEL_DATA_DIR;
}

}  // namespace tessel
