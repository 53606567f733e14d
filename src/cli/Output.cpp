#include "cli/Output.h"

#include <iostream>

#include "base/RuntimeError.h"
#include "cli/CommandLineServices.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"
#include "safekeeping/BackupStore.h"

namespace tessel::cli {
namespace {

bool IsSameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// A result takes no other file's place unless it is told to.
void RefuseToReplace(const std::string& file, const std::string& source) {
  const auto there = posix::StatusOf(file);
  if (!there || !S_ISREG(there->st_mode)) return;
  const auto read = posix::StatusOf(source);
  const bool isSource = read && IsSameFile(*there, *read);
  throw RuntimeError("Cannot save " + file + ": " +
                     (isSource ? "it is the file that was read; --in-place writes over it."
                               : "it is there already; --force replaces it."));
}

}  // namespace

bool WriteResult(std::string_view bytes, const Destination& destination,
                 const std::string& source) {
  const std::string& file = destination.inPlace ? source : destination.file;
  if (file.empty()) {
    std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    std::cout.flush();
    return std::cout.good();
  }
  try {
    PosixFiles files;
    files.KeepOldBytesBy(KeepAsBackups(DefaultBackupFolder()));
    if (!destination.inPlace && !destination.force) RefuseToReplace(file, source);
    destination.inPlace ? files.Write(file, bytes) : files.WriteAs(file, bytes);
    return true;
  } catch (const RuntimeError& error) {
    Complain(error.what());
    return false;
  }
}

}  // namespace tessel::cli
