// Message boxes of the desktop.
#pragma once

#include "platform/Services.h"

namespace tessel {

class QtMessageBox : public MessageBox {
 public:
  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override;
};

}  // namespace tessel
