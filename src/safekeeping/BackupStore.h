// The bytes that saves have replaced.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "safekeeping/KeptText.h"
#include "services/Services.h"

namespace tessel {

struct BackupLimits {
  std::size_t perFile = 20;                         ///< backups of one file
  std::size_t totalBytes = std::size_t{256} << 20;  ///< of all of them; the oldest go first
};

/// One backup: which file's bytes, and when they were replaced.
struct Backup : KeptText {
  std::string name;  ///< of the file that holds it, in the store's folder
};

/// A folder of backups. Each names the file it belongs to inside, so that no file's name, whatever
/// it is, becomes part of a name here. Errors are FileProblems.
class BackupStore {
 public:
  explicit BackupStore(std::string folder, BackupLimits limits = {});

  /// From the next one kept on.
  void Limit(const BackupLimits& limits) { limits_ = limits; }

  /// Keeps the bytes as the newest backup of the file, unless that holds them already, and takes
  /// away what the limits leave no room for. Bytes beyond the limit by themselves are a
  /// FileProblem, as is a folder that cannot be used.
  void Keep(const std::string& path, std::string_view bytes);
  /// The newest first. Empty when there is no folder.
  std::vector<Backup> List() const;
  /// What is left of a damaged one is no FileProblem.
  KeptBytes Read(const Backup& backup) const;

 private:
  void Prune(const PrivateFolder& folder, const std::string& newest) const;

  std::string folder_;
  BackupLimits limits_;
};

/// One name for a file, however it was reached: links and the letters' case are resolved.
std::string PathOfFile(const std::string& path);

/// Keeps old bytes as backups in that folder: for PosixFiles::KeepOldBytesBy.
std::function<void(const std::string& path, std::string_view bytes)> KeepAsBackups(
    std::string folder);

/// The folder of the user's backups, in DefaultStateFolder.
std::string DefaultBackupFolder();

/// Files whose bytes are kept before others replace them. A backup that fails does not keep
/// anybody from saving.
class BackupFiles : public Files {
 public:
  /// What could not be kept and why, said once until it works again.
  using Problem = std::function<void(const std::string& sentence)>;

  /// Both outlive this.
  BackupFiles(Files& files, BackupStore& backups) : files_(files), backups_(backups) {}
  void TellProblems(Problem tell) { tell_ = std::move(tell); }

  std::string Read(const std::string& path) override { return files_.Read(path); }
  void Write(const std::string& path, std::string_view bytes) override;
  void WriteAs(const std::string& path, std::string_view bytes) override;
  void SetAttributesNormal(const std::string& path) override { files_.SetAttributesNormal(path); }
  std::vector<std::string> Listing(const std::string& path) override {
    return files_.Listing(path);
  }
  char Separator() const override { return files_.Separator(); }

 private:
  void KeepOldBytes(const std::string& path, std::string_view replacement);

  Files& files_;
  BackupStore& backups_;
  Problem tell_;
  bool told_ = false;
};

}  // namespace tessel
