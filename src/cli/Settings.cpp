#include <iomanip>
#include <iostream>

#include "cli/DocumentSession.h"
#include "cli/Json.h"
#include "cli/PanelItems.h"
#include "cli/Subcommands.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

/// The item and its value in the session's document; complains when either is not there.
std::optional<std::pair<PanelItem, std::string>> Look(DocumentSession& session,
                                                      const SettingArguments& arguments) {
  const auto item = FindPanelItem(arguments.item);
  if (!item) {
    Complain("There is no setting \"" + arguments.item +
             "\". \"tessel settings FILE\" lists them.");
    return std::nullopt;
  }
  if (!session.Open(arguments.file)) return std::nullopt;
  const auto value = ReadItem(session, *item);
  if (!value) {
    Complain(arguments.file + " does not define " + item->define + ".");
    return std::nullopt;
  }
  return std::pair{*item, *value};
}

}  // namespace

bool ListSettings(const SettingsArguments& arguments) {
  DocumentSession session;
  if (!session.Open(arguments.file)) return false;
  std::vector<JsonObject> list;
  for (const PanelItem& item : PanelItems()) {
    if (!arguments.section.empty() && item.section != arguments.section) continue;
    const auto value = ReadItem(session, item);
    if (arguments.json) {
      list.push_back({{"section", item.section},
                      {"item", item.name},
                      {"define", item.define},
                      {"value", value ? std::optional(ToUtf8(*value)) : std::nullopt}});
    } else {
      std::cout << std::left << std::setw(8) << item.section << std::setw(34) << item.name
                << (value ? DocumentForTerminal(*value) : "-") << '\n';
    }
  }
  if (arguments.json) std::cout << JsonText(list) << '\n';
  return true;
}

bool GetSetting(const SettingArguments& arguments) {
  DocumentSession session;
  const auto found = Look(session, arguments);
  if (found) std::cout << DocumentForTerminal(found->second) << '\n';
  return found.has_value();
}

bool SetSetting(const SettingArguments& arguments) {
  DocumentSession session;
  const auto found = Look(session, arguments);
  if (!found) return false;
  WriteItem(session, found->first, arguments.value);
  const auto now = ReadItem(session, found->first);
  if (!now || !IsSameValue(found->first, *now, arguments.value)) {
    Complain("\"" + ToUtf8(arguments.value) + "\" cannot be the value of " + found->first.name +
             ".");
    return false;
  }
  return WriteResult(session.Editor().Bytes(), arguments.destination, arguments.file);
}

}  // namespace tessel::cli
