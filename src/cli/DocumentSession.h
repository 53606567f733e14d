// One document in a control of its own, without a window.
#pragma once

#include <cstdint>
#include <string>

#include "cli/CommandLineServices.h"
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

  /// Opens a file through the control, uncoloured. False when that failed; the user has been told.
  bool Open(const std::string& path);
  /// Makes a document from a template. False when that failed; the user has been told.
  bool New(const std::string& code);

  /// Runs a command of the control. False when it showed a message.
  bool Run(const std::function<void()>& command);

  ucTessel& Control() { return control_; }
  HostedControls& Controls() { return control_.Controls(); }
  RichTextBox& Editor();
  const Services& World() const { return services_; }
  StderrMessages& Messages() { return messages_; }
  AnsweredForms& Forms() { return forms_; }

 private:
  StderrMessages messages_;
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
