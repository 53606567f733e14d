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
  if (options.json) std::cout << JsonForTerminal(list.dump(2)) << '\n';
  return true;
}

int EntryOf(const ComboBox& levels, const std::string& level) {
  for (int i = 0; i < levels.ListCount(); ++i) {
    if (levels.List(i) == level) return i;
  }
  return kNoSelection;
}

/// What a person does to change the map or the title of the chosen level: enter its box, type over
/// its text, press Insert. False, with a complaint, when the level then shows something else.
bool Replace(HostedControls& c, TextBox& box, CommandButton& insert, const std::string& text,
             const char* what) {
  box.Enter();
  box.Type(text);
  insert.Press();
  c.cboEpisode.Pick(c.cboEpisode.ListIndex());
  if (box.Text() == text) return true;
  Complain("\"" + ToUtf8(text) + "\" cannot be the " + what + " of level " + c.cboEpisode.Text() +
           ".");
  return false;
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
  if (options.map && !Replace(c, c.txtMap, c.cmdInsert[0], *options.map, "map")) return false;
  if (options.title && !Replace(c, c.txtTitle, c.cmdInsert[1], *options.title, "title")) {
    return false;
  }
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
  CLI::Option* map = command->add_option("--map", options->map, "the new map file");
  TakeDocumentText(*map);
  TakeFileName(*map);
  TakeDocumentText(*command->add_option("--title", options->title, "the new title"));
  AddDestination(*command, options->destination);
  command->callback([options, &status] {
    const bool changes = options->map || options->title;
    if (!changes && (options->destination.inPlace || !options->destination.file.empty())) {
      throw CLI::ValidationError("level", "there is nothing to write without --map or --title");
    }
    if (!Change(*options)) status = kFailed;
  });
}

}  // namespace tessel::cli
