// The commands of the protocol.
#pragma once

#include <string_view>

#include "drive/Fields.h"
#include "drive/Stage.h"

namespace tessel::drive {

/// Carries a command out and returns the members of its reply besides "ok" and "events", as an
/// object. A Refusal when it cannot be carried out; nothing has changed then.
using Command = Json (*)(Stage& stage, const Fields& fields);

/// The command of that name, or null.
Command FindCommand(std::string_view name);

// What a person does (Gestures.cpp).
Json Click(Stage& stage, const Fields& fields);
Json ChooseMenuItem(Stage& stage, const Fields& fields);
Json ChoosePopupItem(Stage& stage, const Fields& fields);
Json ReleaseMouse(Stage& stage, const Fields& fields);
Json SelectEntry(Stage& stage, const Fields& fields);
Json DoubleClick(Stage& stage, const Fields& fields);
Json Type(Stage& stage, const Fields& fields);
Json SelectText(Stage& stage, const Fields& fields);
Json MoveFocus(Stage& stage, const Fields& fields);
Json PressKey(Stage& stage, const Fields& fields);
Json QueueAnswer(Stage& stage, const Fields& fields);

// What a host does (HostCommands.cpp).
Json Resize(Stage& stage, const Fields& fields);
Json Call(Stage& stage, const Fields& fields);
Json AccessClipboard(Stage& stage, const Fields& fields);
Json AccessStore(Stage& stage, const Fields& fields);
Json Restart(Stage& stage, const Fields& fields);
Json LoadText(Stage& stage, const Fields& fields);

// What can be seen (Inspection.cpp).
Json GetProperties(Stage& stage, const Fields& fields);
Json GetText(Stage& stage, const Fields& fields);
Json GetColours(Stage& stage, const Fields& fields);
Json GetState(Stage& stage, const Fields& fields);

}  // namespace tessel::drive
