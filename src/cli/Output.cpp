#include "cli/Output.h"

#include <iostream>

#include "base/RuntimeError.h"
#include "cli/CommandLineServices.h"
#include "posix/PosixFiles.h"
#include "safekeeping/BackupStore.h"

namespace tessel::cli {

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
    destination.inPlace ? files.Write(file, bytes) : files.WriteAs(file, bytes);
    return true;
  } catch (const RuntimeError& error) {
    Complain(error.what());
    return false;
  }
}

}  // namespace tessel::cli
