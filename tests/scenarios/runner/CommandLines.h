// Commands of the protocol as lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "JsonText.h"

namespace scenario {

/// The command that a line such as `press FileOpen` stands for; nothing if it begins with no
/// command. Throws std::runtime_error if the rest of the line cannot be read.
std::optional<Json> CommandOf(std::string_view line);

/// The line of a command; nothing for what is no command.
std::optional<std::string> LineOf(const Json& command);

}  // namespace scenario
