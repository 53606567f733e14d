// The services in which a person would take part: answered from the queues and recorded.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drive/Answers.h"
#include "drive/EventLog.h"
#include "services/Services.h"

namespace tessel::drive {

/// The answer by its name ("OK", "Yes", "No", "Cancel"), or nothing.
std::optional<MessageAnswer> MessageAnswerOf(std::string_view name);

/// Answers from the queue. An answer for which the box has no button is used up, and the default is
/// given: OK, else Cancel, else No.
class RecordedMessageBox : public MessageBox {
 public:
  RecordedMessageBox(EventLog& log, Answers& answers) : log_(log), answers_(answers) {}
  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override;

 private:
  EventLog& log_;
  Answers& answers_;
};

/// Answers from the queues. Several files for a dialog that takes one, an empty path and an empty
/// list are used up and cancel the dialog, as an empty queue does.
class RecordedFileDialogs : public FileDialogs {
 public:
  RecordedFileDialogs(EventLog& log, Answers& answers) : log_(log), answers_(answers) {}
  std::optional<std::vector<std::string>> Show(const FileDialogRequest& request) override;

 private:
  EventLog& log_;
  Answers& answers_;
};

/// Records the move and has the platform carry it out.
class RecordedFocus : public Focus {
 public:
  using Move = std::function<void(Control&)>;
  RecordedFocus(EventLog& log, Move move) : log_(log), move_(std::move(move)) {}
  void MoveTo(Control& control) override;

 private:
  EventLog& log_;
  Move move_;
};

}  // namespace tessel::drive
