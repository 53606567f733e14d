// What the program around the control may say before files are opened and saved.
#pragma once

#include <optional>
#include <string>

#include "surface/Document.h"

namespace tessel {

/// A host is asked in the middle of a command, before anything has changed. Without one every
/// answer is yes.
class DocumentHost {
 public:
  virtual ~DocumentHost() = default;
  /// A file is about to be opened, or its tab to be selected where it is open. Returns the path to
  /// go on with: this one, or another spelling of it. Nothing: the host has seen to it, and the
  /// command ends.
  virtual std::optional<std::string> BeforeOpening(const std::string& path) = 0;
  /// The document is about to be written to that path. False: nothing is written, and the document
  /// stays as it is, as after a cancelled dialog.
  virtual bool BeforeSaving(const Document& document, const std::string& path) = 0;
};

/// Says yes to everything.
class SilentHost : public DocumentHost {
 public:
  std::optional<std::string> BeforeOpening(const std::string& path) override { return path; }
  bool BeforeSaving(const Document&, const std::string&) override { return true; }
};

}  // namespace tessel
