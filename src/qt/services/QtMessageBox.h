// Message boxes of the desktop.
#pragma once

#include "services/Services.h"

namespace tessel {

class QtMessageBox : public MessageBox {
 public:
  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override;
};

/// Tells the user a problem that may come at any time, also inside of a command: the box waits
/// until the event loop has its turn.
void TellWhenIdle(const std::string& problem);

}  // namespace tessel
