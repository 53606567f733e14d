#include "embed/InstalledTemplates.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "posix/HostDirectory.h"

namespace tessel {

std::string InstalledTemplates() {
  namespace fs = std::filesystem;
  Dl_info library{};
  static const char insideOfThisLibrary = 0;
  if (dladdr(&insideOfThisLibrary, &library) != 0 && library.dli_fname != nullptr) {
    std::error_code error;
    const fs::path file = fs::canonical(library.dli_fname, error);
    const fs::path installed = (file.parent_path() / TESSEL_DATA_FROM_LIBRARY).lexically_normal();
    if (!error && fs::is_directory(installed, error)) return installed.string();
  }
  return DefaultHostDirectory();
}

}  // namespace tessel
