// The files of a POSIX system.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "posix/SafeSave.h"
#include "services/Services.h"

namespace tessel {

/// Only regular files are read and written, byte for byte; anything else (a directory, a pipe, a
/// device) is refused. Symbolic links are followed and stay. See SafeSave.h for what a save
/// promises, PathResolution.h for how paths are resolved, and SaveTarget.h for what links are
/// refused.
class PosixFiles : public Files {
 public:
  /// Keeps the bytes of the file at the path, which are about to be written over; see KeepOldBytes.
  using Keeper = std::function<void(const std::string& path, std::string_view bytes)>;
  /// Who keeps old bytes where a file can only be written in place. Without one such a file is not
  /// written.
  void KeepOldBytesBy(Keeper keeper) { keeper_ = std::move(keeper); }
  /// What has to hold for the save that is on its way; asked in Write and WriteAs.
  using Condition = std::function<posix::SaveCondition()>;
  void SaveOnlyWhere(Condition condition) { condition_ = std::move(condition); }

  std::string Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view bytes) override;
  void WriteAs(const std::string& path, std::string_view bytes) override;
  /// Write, but refused when the file is not the one that `read` was said of, or was changed since.
  void WriteUnlessChanged(const std::string& path, std::string_view bytes, const struct stat& read);
  /// WriteAs, but refused where something has the name already, at the last moment too.
  void WriteNew(const std::string& path, std::string_view bytes);
  void SetAttributesNormal(const std::string& path) override;
  /// In byte order. Directories and links that lead nowhere are no files.
  std::vector<std::string> Listing(const std::string& path) override;
  char Separator() const override { return '/'; }

 private:
  void Save(const std::string& path, std::string_view bytes, const posix::SaveCondition& condition);
  posix::SaveCondition Wanted() const { return condition_ ? condition_() : posix::SaveCondition(); }

  Keeper keeper_;
  Condition condition_;
};

}  // namespace tessel
