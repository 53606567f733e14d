#include "cli/files/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include "base/RuntimeError.h"
#include "cli/files/Streams.h"
#include "posix/FreshFile.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"
#include "safekeeping/BackupStore.h"

namespace tessel::cli {
namespace {

using posix::Checked;
using posix::IsSameFile;

/// A result takes no other file's place unless it is told to.
void RefuseToReplace(const std::string& file, const std::string& source) {
  const auto there = posix::StatusOf(file);
  if (!there || !S_ISREG(there->st_mode)) return;
  const auto read = posix::StatusOf(source);
  const bool isSource = read && IsSameFile(*there, *read);
  throw RuntimeError("Cannot save " + file + ": " +
                     (isSource ? "it is the file that was read; --in-place writes over it."
                               : "it exists already; --force replaces it."));
}

std::string BackupOf(const std::string& file, const std::string& suffix) {
  return posix::ResolveIgnoringCase(file) + suffix;
}

/// The bytes get the name when they are whole: until then another file keeps it.
void WriteBackup(const std::string& name, std::string_view bytes, mode_t mode, bool force) {
  posix::FreshFile fresh(AT_FDCWD, posix::DirectoryPart(name) + ".tessel-", mode);
  posix::WriteAll(fresh.Number(), bytes);
  Checked([&] { return ::fsync(fresh.Number()); });
  force ? fresh.TakePlaceOf(name) : fresh.TakeFreeName(name);
}

/// Copies a file to a new one beside it that the same people may read.
void BackUp(const std::string& named, const std::string& suffix, bool force) {
  const std::string file = posix::ResolveIgnoringCase(named);
  const std::string backup = BackupOf(named, suffix);
  const std::string old = PosixFiles().Read(file);
  try {
    const auto status = posix::StatusOf(file);
    if (!status) throw posix::FileProblem(errno);
    WriteBackup(backup, old, status->st_mode & 0777, force);
  } catch (const posix::FileProblem& problem) {
    const bool isThere = problem.Code() == EEXIST;
    throw RuntimeError("Cannot back up " + named + " as " + backup + ": " +
                       (isThere ? "it exists already; --force replaces it" : problem.what()) + ".");
  }
}

void WriteOver(const Source& source, std::string_view bytes, const Destination& destination,
               PosixFiles& files) {
  const std::string& file = source.name;
  if (IsStream(file)) throw RuntimeError("Cannot save " + file + ": it is a stream.");
  if (!source.read) throw RuntimeError("Cannot save " + file + ": it is not a regular file.");
  if (destination.backup) BackUp(file, *destination.backup, destination.force);
  files.WriteUnlessChanged(file, bytes, *source.read);
}

}  // namespace

void RefuseToReplaceByBackups(const std::vector<std::string>& files,
                              const Destination& destination) {
  if (!destination.inPlace || !destination.backup || !destination.force) return;
  for (const std::string& file : files) {
    const std::string backup = BackupOf(file, *destination.backup);
    const auto there = posix::StatusOf(backup);
    for (const std::string& other : files) {
      const auto read = there ? posix::StatusOf(posix::ResolveIgnoringCase(other)) : std::nullopt;
      if (!read || !IsSameFile(*there, *read)) continue;
      throw RuntimeError("Cannot back up " + file + " as " + backup + ": " + other +
                         " is one of the files to change.");
    }
  }
}

void WriteResult(std::string_view bytes, const Destination& destination, const Source& source) {
  PosixFiles files;
  files.KeepOldBytesBy(KeepAsBackups(DefaultBackupFolder()));
  if (destination.inPlace) return WriteOver(source, bytes, destination, files);
  if (destination.file.empty()) return WriteStream("-", bytes);
  if (IsStream(destination.file)) return WriteStream(destination.file, bytes);
  if (destination.force) return files.WriteAs(destination.file, bytes);
  RefuseToReplace(destination.file, source.name);
  files.WriteNew(destination.file, bytes);
}

}  // namespace tessel::cli
