// New files that take another file's place when they are whole.
#pragma once

#include <sys/stat.h>

#include <chrono>
#include <string>

#include "posix/Posix.h"

namespace tessel::posix {

/// A new file of a hidden name of its own. It is locked for as long as it has that name, so that
/// others can tell it from one whose writer was killed; and it is taken away again unless it took
/// its place. Errors are FileProblems.
class FreshFile {
 public:
  /// The name is the prefix and 16 digits more. `directory` is an open one; with AT_FDCWD the
  /// prefix has the directory's path in front.
  FreshFile(int directory, const std::string& prefix, mode_t mode);
  ~FreshFile();
  FreshFile(const FreshFile&) = delete;
  FreshFile& operator=(const FreshFile&) = delete;

  int Number() const { return file_.Number(); }
  /// The same file, also when it has taken its place.
  int Held() const { return lock_.Number(); }
  /// Closes it and gives it that name, in the same directory.
  void TakePlaceOf(const std::string& target);
  /// The same, where nothing has that name; otherwise an EEXIST.
  void TakeFreeName(const std::string& target);

 private:
  struct Created {
    std::string name;
    int number;
  };

  FreshFile(int directory, Created created);
  static Created Create(int directory, const std::string& prefix, mode_t mode);

  int directory_;
  std::string name_;
  Descriptor file_;
  Descriptor lock_;  // the same file; it stays locked while it is given its name
  bool placed_ = false;
};

/// Takes away the fresh files of that prefix (without a path) that belong to this user, whose
/// writers are gone, and that have not been written to for that long (0: whenever). A file that is
/// not known to be such a one stays; nothing here is an error.
void RemoveAbandonedFiles(int directory, const std::string& prefix, std::chrono::seconds age);

}  // namespace tessel::posix
