// What a file on disk looked like when the program last read or wrote it.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "services/Services.h"

namespace tessel {

/// Enough of a file's state to see that somebody has changed it: device, number, size and time of
/// change. Two states of a file that is not there are equal.
struct DiskState {
  bool exists = false;
  unsigned long device = 0, number = 0;
  long long size = 0, seconds = 0, nanoseconds = 0;

  friend bool operator==(const DiskState&, const DiskState&) = default;
};

/// The state of the file that the path leads to now.
DiskState DiskStateOf(const std::string& path);

/// The host's files: they remember the state of each file they read or wrote, and refuse to write
/// over a file that somebody else has changed since.
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

  /// What the file looked like when it was last read, written or accepted here.
  std::optional<DiskState> Known(const std::string& path) const;
  /// Throws the RuntimeError of Write when the file is not as it was then, and holds other bytes.
  void RefuseIfChanged(const std::string& path, const DiskState& then, std::string_view bytes);
  /// True when the file was read or written here and is another one now.
  bool ChangedByOthers(const std::string& path) const;
  /// Takes the file as it is now: it may be written over.
  void Accept(const std::string& path);
  /// Forgets the file: it may be written over.
  void Forget(const std::string& path) { known_.erase(path); }

 private:
  class LongWork;


  Files& files_;
  std::function<void(const std::string&)> tellLongWork_;
  std::map<std::string, DiskState> known_;
};

}  // namespace tessel
