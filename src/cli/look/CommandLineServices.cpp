#include "cli/look/CommandLineServices.h"

#include "models/Form.h"

namespace tessel::cli {

MessageAnswer HeardMessages::Show(const std::string& text, MessageIcon, const std::string&,
                                  MessageButtons buttons) {
  if (!heard_) heard_ = text;
  return buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kNo;
}

void AnsweredForms::ShowModal(Form& form) {
  form.Show();
  if (answer) answer(form);
  if (form.Visible()) form.Hide();
}

}  // namespace tessel::cli
