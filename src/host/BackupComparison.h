// A backup beside what its text is now.
#pragma once

#include <string>

#include "host/changes/DifferenceWindow.h"
#include "safekeeping/BackupStore.h"
#include "surface/DocumentList.h"

namespace tessel {

/// `path` is that by which the backup's file is open, if it is. Compared is the text of its
/// document, else the file on the disk, else, where there is no such file, the document in front.
/// A RuntimeError where the file cannot be read.
Comparison CompareBackup(const Backup& backup, std::string bytes, const std::string& path,
                         const DocumentList& documents);

}  // namespace tessel
