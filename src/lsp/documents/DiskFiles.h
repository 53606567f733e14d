// The CON files of a folder, as they are on the disk.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "lsp/documents/Document.h"

namespace tessel::lsp {

/// Reads each file once, and again where it has changed.
class DiskFiles {
 public:
  static constexpr std::size_t kMostFiles = 500;        ///< of a folder
  static constexpr std::int64_t kMostBytes = 64 << 20;  ///< of a file; larger ones are none

  /// The paths of all files there whose names end with ".con" in any case. A folder that cannot be
  /// read has none.
  static std::vector<std::string> In(const std::string& folder);
  /// Null where there is no such file, or it cannot be read. Valid until it is asked for again.
  std::shared_ptr<Document> At(const std::string& path);

 private:
  struct Known {
    std::int64_t size = 0, seconds = 0, nanoseconds = 0;
    std::uint64_t inode = 0;
    std::shared_ptr<Document> document;

    friend bool operator==(const Known& a, const Known& b) {
      return a.size == b.size && a.seconds == b.seconds && a.nanoseconds == b.nanoseconds &&
             a.inode == b.inode;
    }
  };

  std::map<std::string, Known> known_;  // by path
};

}  // namespace tessel::lsp
