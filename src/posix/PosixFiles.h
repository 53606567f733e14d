// The files of a POSIX system.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Services.h"

namespace tessel {

/// Only regular files are read and written, byte for byte; anything else (a directory, a pipe, a
/// device) is refused. Symbolic links are followed and stay. See SafeSave.h for what a save
/// promises, and PathResolution.h for how paths are resolved.
class PosixFiles : public Files {
 public:
  std::string Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view bytes) override;
  void WriteAs(const std::string& path, std::string_view bytes) override;
  void SetAttributesNormal(const std::string& path) override;
  /// In byte order. Directories and links that lead nowhere are no files.
  std::vector<std::string> Listing(const std::string& path) override;
  char Separator() const override { return '/'; }
};

}  // namespace tessel
