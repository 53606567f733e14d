#include "drive/RecordedServices.h"

#include <algorithm>
#include <array>
#include <utility>

#include "models/CommonDialog.h"
#include "models/Control.h"

namespace tessel::drive {
namespace {

struct AnswerName {
  MessageAnswer answer;
  const char* name;
};
constexpr std::array kAnswerNames = {
    AnswerName{MessageAnswer::kOk, "OK"},
    AnswerName{MessageAnswer::kYes, "Yes"},
    AnswerName{MessageAnswer::kNo, "No"},
    AnswerName{MessageAnswer::kCancel, "Cancel"},
};

const char* NameOf(MessageAnswer answer) {
  return std::ranges::find(kAnswerNames, answer, &AnswerName::answer)->name;
}

const char* NameOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kQuestion:
      return "question";
    case MessageIcon::kNone:
      break;
  }
  return "none";
}

/// A box's buttons; the one it gets when nobody answers stands first.
struct Box {
  const char* name;
  std::vector<MessageAnswer> answers;
};

Box BoxOf(MessageButtons buttons) {
  using enum MessageAnswer;
  switch (buttons) {
    case MessageButtons::kYesNo:
    case MessageButtons::kNoYes:
      return {"YesNo", {kNo, kYes}};
    case MessageButtons::kYesNoCancel:
      return {"YesNoCancel", {kCancel, kNo, kYes}};
    case MessageButtons::kOk:
      break;
  }
  return {"OK", {kOk}};
}

bool Fits(const std::vector<std::string>& files, const FileDialogRequest& request) {
  const bool several =
      request.kind == FileDialogRequest::Kind::kOpen && (request.flags & kAllowMultiSelect) != 0;
  const bool count = several ? !files.empty() : files.size() == 1;
  return count && std::ranges::none_of(files, &std::string::empty);
}

}  // namespace

std::optional<MessageAnswer> MessageAnswerOf(std::string_view name) {
  const auto it = std::ranges::find(kAnswerNames, name, &AnswerName::name);
  if (it == kAnswerNames.end()) return std::nullopt;
  return it->answer;
}

MessageAnswer RecordedMessageBox::Show(const std::string& text, MessageIcon icon,
                                       const std::string& title, MessageButtons buttons) {
  const Box box = BoxOf(buttons);
  const auto queued = TakeNext(answers_.message);
  const bool fits = queued && std::ranges::find(box.answers, *queued) != box.answers.end();
  const MessageAnswer answer = fits ? *queued : box.answers.front();
  log_.Add("message", {{"text", FromBytes(text)},
                       {"icon", NameOf(icon)},
                       {"title", FromBytes(title)},
                       {"buttons", box.name},
                       {"answer", NameOf(answer)}});
  return answer;
}

std::optional<std::vector<std::string>> RecordedFileDialogs::Show(
    const FileDialogRequest& request) {
  const bool open = request.kind == FileDialogRequest::Kind::kOpen;
  const ChosenFiles queued = TakeNext(open ? answers_.open : answers_.save).value_or(ChosenFiles());
  const bool cancelled = !Fits(queued, request);
  log_.Add("file dialog", {{"kind", open ? "open" : "save"},
                           {"filter", FromBytes(request.filter)},
                           {"filterIndex", request.filterIndex},
                           {"flags", request.flags},
                           {"initDir", FromBytes(request.initDir)},
                           {"cancelError", request.cancelError},
                           {"answer", cancelled ? Json() : FromBytes(queued)}});
  if (cancelled) return std::nullopt;
  return queued;
}

void RecordedFocus::MoveTo(Control& control) {
  log_.Add("focus", {{"control", FromBytes(control.Name())}, {"index", control.Index()}});
  move_(control);
}

}  // namespace tessel::drive
