// The world as a command line shows it: messages go to standard error, nobody answers.
#pragma once

#include <functional>
#include <string>

#include "services/Services.h"

namespace tessel::cli {

/// Prints each message to standard error and remembers that there was one.
class StderrMessages : public MessageBox {
 public:
  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override;

  bool Shown() const { return shown_; }

  std::string prefix;  ///< put before each message: which of several files it is about

 private:
  bool shown_ = false;
};

/// There is nobody to choose a file.
class NoFileDialogs : public FileDialogs {
 public:
  std::optional<std::vector<std::string>> Show(const FileDialogRequest&) override {
    return std::nullopt;
  }
};

/// Answers a modal form in the user's place.
class AnsweredForms : public ModalForms {
 public:
  /// Fills the form in and presses its buttons. A form that is still open afterwards is hidden.
  std::function<void(Form&)> answer;

  void ShowModal(Form& form) override;
};

/// Prints a line to standard error, with control characters made harmless.
void Complain(const std::string& text);

}  // namespace tessel::cli
