#include "platform/HostDirectory.h"

#include <filesystem>

namespace tessel {

std::string DefaultHostDirectory() {
  std::error_code none;
  return std::filesystem::is_directory(TESSEL_DATA_DIR, none) ? TESSEL_DATA_DIR
                                                              : TESSEL_SOURCE_DATA_DIR;
}

}  // namespace tessel
