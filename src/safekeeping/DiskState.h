// What a file on disk looked like when the program last read or wrote it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "posix/SafeSave.h"
#include "services/Services.h"

namespace tessel {

/// A moment of the system's clock, since 1970.
struct DiskTime {
  long long seconds = 0, nanoseconds = 0;

  friend bool operator==(const DiskTime&, const DiskTime&) = default;
};

/// Enough of a file's state to see that somebody has changed it. Programs can set the time of the
/// writing back, but not that of the last change of anything. Two states of a file that is not
/// there are equal.
struct DiskState {
  bool exists = false;
  unsigned long device = 0, number = 0;
  long long size = 0;
  DiskTime written, changed;

  friend bool operator==(const DiskState&, const DiskState&) = default;
};

/// The state of the file that the path leads to now, in exactly this spelling.
DiskState DiskStateOf(const std::string& path);

/// A file as it was read or written.
struct FileRecord {
  std::string place;  ///< its path as it was found: a file of another spelling is another one
  DiskState state;
  std::optional<std::uint64_t> hash = {};  ///< ContentHash of the bytes, where they could be read
};

/// The host's files: they remember the place and the state of each file they read or wrote, and
/// refuse to write over a file that somebody else has changed since. What was read is written to
/// the place where it was found, even when that is gone and a file of another spelling is there.
class GuardedFiles : public Files {
 public:
  /// `files` outlives this.
  explicit GuardedFiles(Files& files) : files_(files) {}

  std::string Read(const std::string& path) override;
  /// A RuntimeError when the file is not as it was last read, written or accepted here, and holds
  /// other bytes than these.
  void Write(const std::string& path, std::string_view bytes) override;
  void WriteAs(const std::string& path, std::string_view bytes) override;
  void SetAttributesNormal(const std::string& path) override;
  std::vector<std::string> Listing(const std::string& path) override {
    return files_.Listing(path);
  }
  char Separator() const override { return files_.Separator(); }

  /// Is given a line for the user before work on a large file begins, and an empty one afterwards.
  void TellLongWork(std::function<void(const std::string&)> tell) {
    tellLongWork_ = std::move(tell);
  }

  /// What the file that is being written was when that began: for PosixFiles::SaveOnlyWhere, so
  /// that what others write meanwhile stays.
  const posix::SaveCondition& AsItBegan() const { return asItBegan_; }

  /// The file as it was last read, written or accepted here.
  std::optional<FileRecord> Known(const std::string& path) const;
  /// True when the file is another one than the record says. New permissions or one more name make
  /// it no other one: the bytes are looked at before that is said, and the record is renewed.
  bool Changed(FileRecord& record);
  /// Throws the RuntimeError of Write when the file is another one than the record says and holds
  /// other bytes than these.
  void RefuseIfChanged(FileRecord& record, std::string_view bytes);
  /// True when the file was read or written here and is another one now.
  bool ChangedByOthers(const std::string& path);
  /// Takes the file as it is now: it may be written over.
  void Accept(const std::string& path);
  /// Forgets the file: it may be written over.
  void Forget(const std::string& path) { known_.erase(path); }

 private:
  class LongWork;

  std::string PlaceOf(const std::string& path) const;
  bool HasTheBytes(const FileRecord& record);
  void Put(const std::string& path, const std::string& place, std::string_view bytes);

  Files& files_;
  std::function<void(const std::string&)> tellLongWork_;
  posix::SaveCondition asItBegan_;
  std::map<std::string, FileRecord> known_;
};

}  // namespace tessel
