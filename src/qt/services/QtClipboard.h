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
  /// Empty when the clipboard is. A RuntimeError, so that a paste ends before it has replaced
  /// anything, when there is something else and no text, a text with a character that Windows-1252
  /// cannot hold, or when the program that has the clipboard does not answer.
  std::string GetText() override;
};

}  // namespace tessel
