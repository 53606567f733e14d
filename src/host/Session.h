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

/// Stores the list for the next start.
void RememberDocuments(const OpenDocuments& documents);
/// Forgets the stored one.
void ForgetDocuments();
OpenDocuments RememberedDocuments();

/// Opens them again. Returns the paths of those that are not there any more.
std::vector<std::string> ReopenDocuments(ucTessel& tessel, Files& files,
                                         const OpenDocuments& documents);

}  // namespace tessel
