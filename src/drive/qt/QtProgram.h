// tessel-drive on the real widgets.
#pragma once

#include <memory>

#include "drive/Player.h"

namespace tessel::drive {

/// Makes the toolkit ready, offscreen where there is no display. Lives as long as the widgets.
class QtProgram {
 public:
  QtProgram();
  ~QtProgram();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

std::unique_ptr<Player> MakeWidgetPlayer(Clipboard& clipboard);

}  // namespace tessel::drive
