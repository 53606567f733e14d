// The control's file dialog, and the file it last held.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "models/Control.h"
#include "services/Services.h"

namespace tessel {

/// Flags of a file dialog, by the common dialog's own values.
inline constexpr int kOverwritePrompt = 0x2;
inline constexpr int kHideReadOnly = 0x4;
inline constexpr int kAllowMultiSelect = 0x200;
inline constexpr int kExplorerStyle = 0x80000;

/// The file chosen last, in whatever dialog. An in-place save takes its name over.
struct HeldFile {
  std::string fileName;   ///< full path
  std::string fileTitle;  ///< the name without its directory
};

class CommonDialog : public Control {
 public:
  using Control::Control;

  const HeldFile& Held() const { return held_; }
  void SetHeld(HeldFile held) { held_ = std::move(held); }

  /// Shows the dialog. Holds the last of the chosen files afterwards; a cancelled dialog returns
  /// nothing and holds what it held before.
  std::optional<std::vector<std::string>> Show(FileDialogs& dialogs, const Files& files,
                                               const FileDialogRequest& request);

 private:
  HeldFile held_;
};

}  // namespace tessel
