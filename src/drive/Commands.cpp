#include "drive/Commands.h"

#include <algorithm>
#include <array>

namespace tessel::drive {
namespace {

struct NamedCommand {
  std::string_view name;
  Command command;
};

constexpr std::array kCommands = {
    NamedCommand{"answer", QueueAnswer},
    NamedCommand{"call", Call},
    NamedCommand{"click", Click},
    NamedCommand{"clipboard", AccessClipboard},
    NamedCommand{"colours", GetColours},
    NamedCommand{"dblclick", DoubleClick},
    NamedCommand{"focus", MoveFocus},
    NamedCommand{"get", GetProperties},
    NamedCommand{"key", PressKey},
    NamedCommand{"load", LoadText},
    NamedCommand{"menu", ChooseMenuItem},
    NamedCommand{"mouse", ReleaseMouse},
    NamedCommand{"popup", ChoosePopupItem},
    NamedCommand{"resize", Resize},
    NamedCommand{"restart", Restart},
    NamedCommand{"sel", SelectText},
    NamedCommand{"select", SelectEntry},
    NamedCommand{"state", GetState},
    NamedCommand{"store", AccessStore},
    NamedCommand{"text", GetText},
    NamedCommand{"type", Type},
};

}  // namespace

Command FindCommand(std::string_view name) {
  const auto it = std::ranges::find(kCommands, name, &NamedCommand::name);
  return it == kCommands.end() ? nullptr : it->command;
}

}  // namespace tessel::drive
