#include "host/Session.h"

#include <QByteArray>
#include <QSettings>

#include "documents/DocumentSlots.h"
#include "services/Paths.h"

namespace tessel {
namespace {

constexpr const char* kWanted = "session/reopen";
constexpr const char* kFiles = "session/files";
constexpr const char* kCurrent = "session/current";

std::string PathOfTab(const Tab& tab) { return tab.tag == kUntitled ? std::string() : tab.tag; }

}  // namespace

OpenDocuments OpenDocumentsOf(const HostedControls& controls) {
  const TabStrip& tabs = controls.tbsRtb;
  OpenDocuments open;
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    const std::string path = PathOfTab(tabs.At(tab));
    if (!path.empty()) open.paths.push_back(path);
  }
  open.current = PathOfTab(tabs.At(tabs.Selected()));
  return open;
}

bool ReopeningWanted() { return QSettings().value(kWanted, false).toBool(); }

void SetReopeningWanted(bool wanted) { QSettings().setValue(kWanted, wanted); }

void RememberDocuments(const OpenDocuments& documents) {
  QSettings settings;
  if (!ReopeningWanted()) {
    settings.remove(kFiles);
    settings.remove(kCurrent);
    return;
  }
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
  TabStrip& tabs = tessel.Controls().tbsRtb;
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    if (!documents.current.empty() && tabs.At(tab).tag == documents.current) {
      tabs.Select(tab);
      break;
    }
  }
  return missing;
}

}  // namespace tessel
