#include "host/Session.h"

#include <QByteArray>
#include <QSettings>

#include "services/Paths.h"

namespace tessel {
namespace {

constexpr const char* kFiles = "session/files";
constexpr const char* kCurrent = "session/current";

}  // namespace

OpenDocuments OpenDocumentsOf(const DocumentList& documents) {
  OpenDocuments open;
  for (const Document& document : documents.All()) {
    if (std::string path = document.Path(); !path.empty()) open.paths.push_back(std::move(path));
  }
  open.current = documents.Current().Path();
  return open;
}

void ForgetDocuments() {
  QSettings settings;
  settings.remove(kFiles);
  settings.remove(kCurrent);
}

void RememberDocuments(const OpenDocuments& documents) {
  QSettings settings;
  QVariantList files;
  for (const std::string& path : documents.paths) files += QByteArray::fromStdString(path);
  settings.setValue(kFiles, files);
  settings.setValue(kCurrent, QByteArray::fromStdString(documents.current));
}

OpenDocuments RememberedDocuments() {
  const QSettings settings;
  OpenDocuments documents;
  for (const QVariant& file : settings.value(kFiles).toList()) {
    documents.paths.push_back(file.toByteArray().toStdString());
  }
  documents.current = settings.value(kCurrent).toByteArray().toStdString();
  return documents;
}

std::vector<std::string> ReopenDocuments(ucTessel& tessel, Files& files,
                                         const OpenDocuments& documents) {
  std::vector<std::string> missing;
  for (const std::string& path : documents.paths) {
    if (FileExists(files, path)) {
      tessel.OpenFile(path);
    } else {
      missing.push_back(path);
    }
  }
  const auto current = tessel.OpenDocuments().WithPath(documents.current);
  if (current && !documents.current.empty()) tessel.OpenDocuments().Select(current->Place());
  return missing;
}

}  // namespace tessel
