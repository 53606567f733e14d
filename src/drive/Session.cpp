#include "drive/Session.h"

#include <istream>
#include <ostream>
#include <utility>

#include "drive/Commands.h"
#include "drive/Refusal.h"
#include "text/SafeText.h"

namespace tessel::drive {
namespace {

Json Refused(const std::exception& why) {
  return {{"ok", false}, {"error", FromBytes(why.what())}};
}

}  // namespace

void Session::Run(Stage& stage) {
  stage_ = &stage;
  stage.Log().Take();  // the start belongs to no command
  std::string line;
  while (!quit_ && std::getline(in_, line)) Serve(line, nullptr);
}

void Session::ShowModal(Form& form) {
  form.Show();
  stage_->OpenForms().push_back(&form);
  stage_->Log().Add("modal",
                    {{"form", FromBytes(form.Name())}, {"caption", FromBytes(form.Caption())}});
  stage_->Person().Settle();
  if (std::exchange(replyDue_, false)) Send({{"ok", true}});

  std::string line;
  while (form.Visible()) {
    if (!std::getline(in_, line)) stage_->Person().Leave(0);
    Serve(line, &form);
    if (quit_) stage_->Person().Leave(0);
  }
  stage_->OpenForms().pop_back();
  stage_->Log().Add("modal closed", {{"form", FromBytes(form.Name())}});
}

void Session::Serve(const std::string& line, const Form* form) {
  replyDue_ = true;
  command_ = line;
  Json reply = Execute(line);
  stage_->Person().Settle();
  if (!replyDue_) return;
  if (held_) reply = *std::exchange(held_, std::nullopt);
  if (form != nullptr && !form->Visible()) {
    held_ = std::move(reply);
  } else {
    replyDue_ = false;
    Send(std::move(reply));
  }
}

Json Session::Execute(const std::string& line) {
  try {
    const Fields fields(ParseCommand(line));
    const std::string name = fields.Text("do");
    Json reply{{"ok", true}};
    if (name == "quit") {
      quit_ = true;
      return reply;
    }
    const Command command = FindCommand(name);
    if (command == nullptr) throw Refusal("unknown command");
    reply.update(command(*stage_, fields));
    return reply;
  } catch (const std::exception& error) {
    return Refused(error);
  }
}

void Session::Send(Json reply) {
  reply["events"] = stage_->Log().Take();
  out_ << reply.dump() << '\n' << std::flush;
  LookAtScreen();
}

void Session::LookAtScreen() {
  const std::vector<std::string> differences = stage_->Person().Differences();
  if (differences.empty()) return;
  errors_ << "The screen is not as the models say, after " << ForTerminal(command_) << '\n';
  for (const std::string& difference : differences) errors_ << "  " << difference << '\n';
  errors_.flush();
  stage_->Person().Leave(1);
}

}  // namespace tessel::drive
