// A folder of the user's own in which the program keeps texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "posix/Posix.h"

namespace tessel {

/// $XDG_STATE_HOME/ZanthMan where that is a whole path, by default .local/state/ZanthMan in the
/// user's home.
std::string DefaultStateFolder();

/// What became of locking a file. It stays locked for as long as the descriptor is open, which is
/// the caller's to close.
struct FolderLock {
  enum class State {
    kOurs,
    kTaken,   ///< somebody else has it locked; there is no descriptor
    kUnknown  ///< the file system knows no locks
  };
  State state;
  int file;
};

/// A directory that only its owner can look into. It is held open: whatever happens to its path
/// afterwards, the files stay the same. Names have no directory part. Errors are
/// FileProblems.
class PrivateFolder {
 public:
  /// Makes the directory, and those on the way to it, where they are not there, and flushes the
  /// names of those that it made. One that belongs to
  /// somebody else is refused, and so is a symbolic link in its place or in that of the folder
  /// around it. Links further up are the user's own affair.
  explicit PrivateFolder(const std::string& path);

  /// Puts a whole file in place, flushed to the disk, for its owner's eyes alone. A crash leaves
  /// the old file or the new one; a link of that name is replaced, never followed.
  void Write(const std::string& name, std::string_view head, std::string_view bytes) const;
  /// A regular file's bytes; a link is not followed.
  std::string Read(const std::string& name) const;
  /// The first of them.
  std::string ReadHead(const std::string& name, std::size_t length) const;
  /// Size in bytes, or nothing when no regular file has that name.
  std::optional<std::size_t> SizeOf(const std::string& name) const;
  /// When it was written, in seconds since 1970; 0 when that cannot be said.
  long long SecondsOf(const std::string& name) const;
  /// A file that is not there is no error.
  void Remove(const std::string& name) const;
  /// The names of all entries but hidden ones, in byte order.
  std::vector<std::string> Names() const;
  /// Takes away what writes that were killed half-way have left behind.
  void RemoveLeftovers() const;

  /// Gives an entry another name, flushed. An empty directory of that name is replaced.
  void Rename(const std::string& from, const std::string& to) const;
  /// Flushes the names in it, whoever gave them.
  void FlushNames() const;
  /// Does the path still lead here?
  bool IsAt(const std::string& path) const;

  /// Makes the file if necessary and locks it.
  FolderLock Lock(const std::string& name) const;

 private:
  int OpenToRead(const std::string& name) const;

  posix::Descriptor directory_;
};

}  // namespace tessel
