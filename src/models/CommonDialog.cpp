#include "models/CommonDialog.h"

#include "services/Paths.h"

namespace tessel {

std::optional<std::vector<std::string>> CommonDialog::Show(FileDialogs& dialogs, const Files& files,
                                                           const FileDialogRequest& request) {
  auto chosen = dialogs.Show(request);
  if (!chosen || chosen->empty()) return std::nullopt;
  held_ = {chosen->back(), NameOfPath(chosen->back(), files.Separator())};
  return chosen;
}

}  // namespace tessel
