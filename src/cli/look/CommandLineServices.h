// The world as a command line shows it: nobody answers.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "services/Services.h"

namespace tessel::cli {

/// Remembers the first message, for who asked for the command.
class HeardMessages : public MessageBox {
 public:
  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override;

  const std::optional<std::string>& Heard() const { return heard_; }

 private:
  std::optional<std::string> heard_;
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

}  // namespace tessel::cli
