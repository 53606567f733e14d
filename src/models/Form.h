// A modal dialog of the control.
#pragma once

#include <string>

#include "base/Event.h"
#include "models/ControlSet.h"

namespace tessel {

class CommandButton;

/// The model of a dialog form: a surface with controls of its own. ModalForms::ShowModal shows it
/// and returns when it is hidden again. A form keeps its controls' state while it is hidden.
class Form {
 public:
  Form(std::string name, std::string caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  bool Visible() const { return visible_; }
  void Show();
  void Hide();

  /// The buttons that Return and Escape press, or null.
  virtual CommandButton* DefaultButton() { return nullptr; }
  virtual CommandButton* CancelButton() { return nullptr; }

  /// The form's own controls; they come before those of the surface behind it.
  ControlSet controls;

  /// The form was shown (Visible is true) or hidden, or its caption changed. Raised at once: a view
  /// opens or closes its dialog, and waits for nothing.
  Event<> Refresh;

 private:
  std::string name_;
  std::string caption_;
  bool visible_ = false;
};

}  // namespace tessel
