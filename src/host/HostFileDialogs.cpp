#include "host/HostFileDialogs.h"

#include "models/CommonDialog.h"
#include "services/Paths.h"

namespace tessel {
namespace {

constexpr char kPathSeparator = '/';
constexpr const char* kScripts = "*.con";

}  // namespace

std::optional<std::vector<std::string>> HostFileDialogs::Show(const FileDialogRequest& request) {
  FileDialogRequest asked = request;
  asked.flags &= ~kOverwritePrompt;
  const std::string path = currentPath_();
  if (!path.empty() && request.filter.find(kScripts) != std::string::npos) {
    const std::string name = NameOfPath(path, kPathSeparator);
    asked.initDir = path.substr(0, path.size() - name.size());
    if (request.kind == FileDialogRequest::Kind::kSave) asked.fileName = name;
  }
  return dialogs_.Show(asked);
}

}  // namespace tessel
