// The documents of the last run, for a user who wants to find them open again.
#pragma once

#include <QStringList>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "services/Services.h"

namespace tessel {

/// The files that are open, in the order of their tabs.
struct OpenDocuments {
  std::vector<std::string> paths;
  std::string current;  ///< empty when it has no file

  friend bool operator==(const OpenDocuments&, const OpenDocuments&) = default;
};

OpenDocuments OpenDocumentsOf(const DocumentList& documents);

/// The user's wish; off by default.
bool ReopeningWanted();
void SetReopeningWanted(bool wanted);

/// Stores the list when it is wanted, and forgets the stored one when it is not.
void RememberDocuments(const OpenDocuments& documents);
OpenDocuments RememberedDocuments();

/// Opens them again. Returns the paths of those that are not there any more.
std::vector<std::string> ReopenDocuments(ucTessel& tessel, Files& files,
                                         const OpenDocuments& documents);

}  // namespace tessel
