// The real paths of files whose recent names are kept in capital letters.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "services/Services.h"
#include "surface/DocumentList.h"

namespace tessel {

/// The recent list keeps paths in capital letters; where the file system tells case apart, several
/// files may be meant. This keeps the path as it was opened beside that, in a section of the
/// settings of its own.
class RealPaths {
 public:
  /// `settings` outlives this.
  explicit RealPaths(SettingsStore& settings) : settings_(settings) {}

  /// Remembers the files of documents that are opened and saved.
  void Watch(DocumentList& documents);

  /// Where the file is that the path means: the path itself when it exists as written; else the
  /// remembered one, if that exists; else every spelling that exists. Empty: there is none. A path
  /// in capital letters may be that of the recent list: where it exists as written and another one
  /// is remembered, these are two.
  std::vector<std::string> Candidates(const std::string& path) const;

 private:
  void Remember(const std::string& path);
  /// Nothing when it is not there any more.
  std::optional<std::string> Remembered(const std::string& key) const;

  SettingsStore& settings_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
