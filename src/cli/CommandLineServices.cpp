#include "cli/CommandLineServices.h"

#include <iostream>

#include "models/Form.h"
#include "text/SafeText.h"

namespace tessel::cli {

void Complain(const std::string& text) { std::cerr << "tessel: " << ForTerminal(text) << '\n'; }

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
