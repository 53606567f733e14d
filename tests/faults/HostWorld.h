// The control as the host runs it: guarded files whose old bytes are kept, and texts kept for
// recovery.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "safekeeping/BackupStore.h"
#include "safekeeping/DiskState.h"
#include "safekeeping/RecoveryStore.h"
#include "support/RealWorld.h"

namespace tessel::test {

/// What the host has between the control and the disk.
struct HostFiles {
  explicit HostFiles(const std::string& state) : backups(state + "/backups") {
    plainFiles.KeepOldBytesBy(KeepAsBackups(state + "/backups"));
    plainFiles.SaveOnlyWhere([this] { return files.AsItBegan(); });
    keptFiles.TellProblems([this](const std::string& problem) { problems.push_back(problem); });
  }

  std::vector<std::string> problems;  ///< what the status bar says of backups
  PosixFiles plainFiles;
  BackupStore backups;
  BackupFiles keptFiles{plainFiles, backups};
  GuardedFiles files{keptFiles};
};

/// A running program with all of it but the window.
class HostedProgram : private HostFiles, public Program {
 public:
  HostedProgram(const std::string& store, const std::string& state)
      : HostFiles(state), Program(store, HostFiles::files) {}

  /// Everything that the user was told, in a line: boxes, then the status bar.
  std::string EverythingTold() {
    std::string line = ToldInALine();
    for (const std::string& problem : problems) line += (line.empty() ? "" : " | ") + problem;
    problems.clear();
    return line;
  }
};

/// The file's bytes now, or nothing when there is none: for AbandonedTexts.
inline std::optional<std::string> BytesIfThere(const std::string& path) {
  if (!std::filesystem::exists(path)) return std::nullopt;
  return BytesOf(path);
}

/// The texts that the next start offers, as "PATH: TEXT", and what it says of others.
inline std::vector<std::string> Offered(const std::string& state) {
  std::vector<std::string> lines;
  const AbandonedTexts texts(state + "/recovery", BytesIfThere);
  for (const KeptBytes& text : texts.Texts()) {
    lines.push_back(text.path + ": " + text.bytes + (text.damaged ? " [damaged]" : ""));
  }
  if (texts.Problem()) lines.push_back("told: " + *texts.Problem());
  return lines;
}

/// The texts of the backups, the newest first; a damaged one has "[damaged]" behind it.
inline std::vector<std::string> BackedUp(const std::string& state) {
  std::vector<std::string> texts;
  const BackupStore backups(state + "/backups");
  for (const Backup& backup : backups.List()) {
    const KeptBytes kept = backups.Read(backup);
    texts.push_back(kept.bytes + (kept.damaged ? " [damaged]" : ""));
  }
  return texts;
}

}  // namespace tessel::test
