// One document in a control of its own, without a window.
#pragma once

#include <cstdint>
#include <string>

#include "cli/look/CommandLineServices.h"
#include "control/ucTessel.h"
#include "posix/PosixFiles.h"
#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"
#include "services/MemorySettingsStore.h"

namespace tessel::cli {

/// A fresh control on the command line's services. Its settings are in memory: a command leaves no
/// trace in the user's recent files.
class DocumentSession {
 public:
  explicit DocumentSession(std::uint32_t seed = LinearCongruentialRandom::kStart);

  /// Shows a text as the document, uncoloured.
  void Show(std::string bytes);
  /// Makes a document from a template. A RuntimeError when that fails.
  void New(const std::string& code);

  /// Runs a command of the control. What the control then says is a RuntimeError.
  void Run(const std::function<void()>& command);

  ucTessel& Control() { return control_; }
  HostedControls& Controls() { return control_.Controls(); }
  RichTextBox& Editor();
  const Services& World() const { return services_; }
  AnsweredForms& Forms() { return forms_; }

 private:
  HeardMessages messages_;
  NoFileDialogs fileDialogs_;
  AnsweredForms forms_;
  MemoryClipboard clipboard_;
  MemorySettingsStore settings_;
  PlainScreenPointer pointer_;
  PosixFiles files_;
  LinearCongruentialRandom random_;
  IgnoredFocus focus_;
  IdleMessageLoop loop_;
  Services services_;
  ucTessel control_;
};

}  // namespace tessel::cli
