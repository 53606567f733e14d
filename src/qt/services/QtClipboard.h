// The clipboard service of the Qt platform.
#pragma once

#include <string>

#include "services/Services.h"

namespace tessel {

/// The system's clipboard. Every one of the 256 bytes comes back as it was put there; other
/// programs see the Windows-1252 characters.
class QtClipboard : public Clipboard {
 public:
  void Clear() override;
  void SetText(const std::string& text) override;
  /// Empty when there is no text. A text with a character that Windows-1252 cannot hold is a
  /// RuntimeError, so that a paste of it ends before it has replaced anything.
  std::string GetText() override;
};

}  // namespace tessel
