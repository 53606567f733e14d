#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/CommonOptions.h"
#include "cli/DocumentSession.h"
#include "cli/PanelItems.h"
#include "cli/SafeText.h"
#include "cli/Subcommands.h"

namespace tessel::cli {
namespace {

using Json = nlohmann::ordered_json;

struct Options {
  std::string file;
  std::string section;
  bool json = false;
  std::string item;
  std::string value;
  Destination destination;
};

bool List(const Options& options) {
  DocumentSession session;
  if (!session.Open(options.file)) return false;
  Json list = Json::array();
  for (const PanelItem& item : PanelItems()) {
    if (!options.section.empty() && item.section != options.section) continue;
    const auto value = ReadItem(session, item);
    if (options.json) {
      list.push_back({{"section", item.section},
                      {"item", item.name},
                      {"define", item.define},
                      {"value", value ? Json(ToUtf8(*value)) : Json()}});
    } else {
      std::cout << std::left << std::setw(8) << item.section << std::setw(34) << item.name
                << (value ? DocumentForTerminal(*value) : "-") << '\n';
    }
  }
  if (options.json) std::cout << JsonForTerminal(list.dump(2)) << '\n';
  return true;
}

/// The item and its value in the session's document; complains when either is not there.
std::optional<std::pair<PanelItem, std::string>> Look(DocumentSession& session,
                                                      const Options& options) {
  const auto item = FindPanelItem(options.item);
  if (!item) {
    Complain("There is no setting \"" + options.item + "\". \"tessel settings FILE\" lists them.");
    return std::nullopt;
  }
  if (!session.Open(options.file)) return std::nullopt;
  const auto value = ReadItem(session, *item);
  if (!value) {
    Complain(options.file + " does not define " + item->define + ".");
    return std::nullopt;
  }
  return std::pair{*item, *value};
}

bool Get(const Options& options) {
  DocumentSession session;
  const auto found = Look(session, options);
  if (found) std::cout << DocumentForTerminal(found->second) << '\n';
  return found.has_value();
}

bool Set(const Options& options) {
  DocumentSession session;
  const auto found = Look(session, options);
  if (!found) return false;
  WriteItem(session, found->first, options.value);
  const auto now = ReadItem(session, found->first);
  if (!now || !IsSameValue(found->first, *now, options.value)) {
    Complain("\"" + ToUtf8(options.value) + "\" cannot be the value of " + found->first.name + ".");
    return false;
  }
  return WriteResult(session.Editor().Bytes(), options.destination, options.file);
}

CLI::App* AddItemCommand(CLI::App& program, const char* name, const char* what, Options& options) {
  CLI::App* command = program.add_subcommand(name, what);
  AddFile(*command, options.file);
  command->add_option("ITEM", options.item, "its name in the list, or its define")->required();
  return command;
}

}  // namespace

void AddSettings(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = program.add_subcommand("settings", "List the tunable values of a user file");
  AddFile(*command, options->file);
  command->add_option("--section", options->section, "Player, Weapon, Enemy or Misc")
      ->transform(CLI::IsMember(std::vector<std::string>{"Player", "Weapon", "Enemy", "Misc"},
                                CLI::ignore_case));
  command->add_flag("--json", options->json, "print JSON");
  command->callback([options, &status] {
    if (!List(*options)) status = kFailed;
  });
}

void AddGet(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = AddItemCommand(program, "get", "Print one value of a user file", *options);
  command->callback([options, &status] {
    if (!Get(*options)) status = kFailed;
  });
}

void AddSet(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = AddItemCommand(program, "set", "Change one value of a user file", *options);
  TakeDocumentText(*command->add_option("VALUE", options->value, "the new value")->required());
  AddDestination(*command, options->destination);
  command->callback([options, &status] {
    if (!Set(*options)) status = kFailed;
  });
}

}  // namespace tessel::cli
