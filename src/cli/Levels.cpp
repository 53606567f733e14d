#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>

#include "cli/CommonOptions.h"
#include "cli/DocumentSession.h"
#include "cli/SafeText.h"
#include "cli/Subcommands.h"

namespace tessel::cli {
namespace {

using Json = nlohmann::ordered_json;

struct Options {
  std::string file;
  std::string level;
  std::optional<std::string> map, title;
  bool json = false;
  Destination destination;
};

void OpenLevelsPage(HostedControls& controls) { controls.tbsCon.Press(kLevelPage + 1); }

bool List(const Options& options) {
  DocumentSession session;
  if (!session.Open(options.file)) return false;
  HostedControls& c = session.Controls();
  OpenLevelsPage(c);
  Json list = Json::array();
  for (int i = 0; i < c.cboEpisode.ListCount(); ++i) {
    c.cboEpisode.Pick(i);
    if (options.json) {
      list.push_back({{"level", ToUtf8(c.cboEpisode.Text())},
                      {"map", ToUtf8(c.txtMap.Text())},
                      {"title", ToUtf8(c.txtTitle.Text())}});
    } else {
      std::cout << DocumentForTerminal(c.cboEpisode.Text()) << '\t'
                << DocumentForTerminal(c.txtMap.Text()) << '\t'
                << DocumentForTerminal(c.txtTitle.Text()) << '\n';
    }
  }
  if (options.json) std::cout << list.dump(2) << '\n';
  return true;
}

int EntryOf(const ComboBox& levels, const std::string& level) {
  for (int i = 0; i < levels.ListCount(); ++i) {
    if (levels.List(i) == level) return i;
  }
  return kNoSelection;
}

// As a person does it: enter the box, type over its text, press Insert.
void Replace(TextBox& box, CommandButton& insert, const std::string& text) {
  box.Enter();
  box.Type(text);
  insert.Press();
}

bool Change(const Options& options) {
  DocumentSession session;
  if (!session.Open(options.file)) return false;
  HostedControls& c = session.Controls();
  OpenLevelsPage(c);
  const int entry = EntryOf(c.cboEpisode, options.level);
  if (entry == kNoSelection) {
    Complain(options.file + " has no level \"" + options.level + "\".");
    return false;
  }
  c.cboEpisode.Pick(entry);
  if (!options.map && !options.title) {
    std::cout << DocumentForTerminal(c.txtMap.Text()) << '\t'
              << DocumentForTerminal(c.txtTitle.Text()) << '\n';
    return true;
  }
  if (options.map) Replace(c.txtMap, c.cmdInsert[0], *options.map);
  if (options.title) Replace(c.txtTitle, c.cmdInsert[1], *options.title);
  return WriteResult(session.Editor().Bytes(), options.destination, options.file);
}

}  // namespace

void AddLevels(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command =
      program.add_subcommand("levels", "List the levels with their maps and titles");
  AddFile(*command, options->file);
  command->add_flag("--json", options->json, "print JSON");
  command->callback([options, &status] {
    if (!List(*options)) status = kFailed;
  });
}

void AddLevel(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = program.add_subcommand("level", "Show or change a level's map and title");
  AddFile(*command, options->file);
  command->add_option("LEVEL", options->level, "episode and level, such as \"0 7\"")->required();
  command->add_option("--map", options->map, "the new map file");
  command->add_option("--title", options->title, "the new title");
  AddDestination(*command, options->destination);
  command->callback([options, &status] {
    if (!Change(*options)) status = kFailed;
  });
}

}  // namespace tessel::cli
