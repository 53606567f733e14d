// The conversation: commands in, replies out.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "drive/Stage.h"

namespace tessel::drive {

/// Reads commands line by line and answers each with one line, in order, until "quit" or the end of
/// the input.
///
/// The session also shows the modal forms: the command that opens one is answered at once, the
/// commands after it are served from inside ShowModal, and the command that hides the form is
/// answered when everything that follows the closing has run.
class Session : public ModalForms {
 public:
  Session(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

  /// Serves all commands.
  void Run(Stage& stage);

  void ShowModal(Form& form) override;

 private:
  /// Serves one command; with `form` open in front, its reply waits when the command hides the
  /// form.
  void Serve(const std::string& line, const Form* form);
  Json Execute(const std::string& line);
  void Send(Json reply);

  std::istream& in_;
  std::ostream& out_;
  Stage* stage_ = nullptr;
  bool replyDue_ = false;
  bool quit_ = false;
  /// The reply of the command that hid a form.
  std::optional<Json> held_;
};

}  // namespace tessel::drive
