// The file dialogs of the window.
#pragma once

#include "models/CommonDialog.h"
#include "services/Services.h"

namespace tessel {

/// Leaves the question whether a file is to be replaced to DocumentGuard, which knows more to say
/// than the dialog.
class HostFileDialogs : public FileDialogs {
 public:
  /// `dialogs` outlives this.
  explicit HostFileDialogs(FileDialogs& dialogs) : dialogs_(dialogs) {}

  std::optional<std::vector<std::string>> Show(const FileDialogRequest& request) override {
    FileDialogRequest unasked = request;
    unasked.flags &= ~kOverwritePrompt;
    return dialogs_.Show(unasked);
  }

 private:
  FileDialogs& dialogs_;
};

}  // namespace tessel
