// Modal forms, whose dialogs open by themselves when the model is shown.
#pragma once

#include "services/Services.h"

namespace tessel {

class QtModalForms : public ModalForms {
 public:
  void ShowModal(Form& form) override;
};

}  // namespace tessel
