// The file dialogs of the window.
#pragma once

#include <functional>

#include "services/Services.h"

namespace tessel {

/// Leaves the question whether a file is to be replaced to DocumentGuard, which knows more to say
/// than the dialog. A dialog for scripts starts where the document in front is, and the one that
/// saves proposes its name.
class HostFileDialogs : public FileDialogs {
 public:
  /// `dialogs` outlives this.
  explicit HostFileDialogs(FileDialogs& dialogs) : dialogs_(dialogs) {}

  /// Says where the document in front has its file; empty when it has none.
  void StartAt(std::function<std::string()> currentPath) { currentPath_ = std::move(currentPath); }

  std::optional<std::vector<std::string>> Show(const FileDialogRequest& request) override;

 private:
  FileDialogs& dialogs_;
  std::function<std::string()> currentPath_ = [] { return std::string(); };
};

}  // namespace tessel
