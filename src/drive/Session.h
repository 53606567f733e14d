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
///
/// After each reply the screen has to be as the models say. Where it is not, `errors` gets a line
/// for each difference, and the program ends with status 1.
class Session : public ModalForms {
 public:
  Session(std::istream& in, std::ostream& out, std::ostream& errors)
      : in_(in), out_(out), errors_(errors) {}

  /// Serves all commands.
  void Run(Stage& stage);

  void ShowModal(Form& form) override;

 private:
  /// Serves one command; with `form` open in front, its reply waits when the command hides the
  /// form.
  void Serve(const std::string& line, const Form* form);
  Json Execute(const std::string& line);
  void Send(Json reply);
  void LookAtScreen();

  std::istream& in_;
  std::ostream& out_;
  std::ostream& errors_;
  std::string command_;  // the last one
  Stage* stage_ = nullptr;
  bool replyDue_ = false;
  bool quit_ = false;
  /// The reply of the command that hid a form.
  std::optional<Json> held_;
};

}  // namespace tessel::drive
