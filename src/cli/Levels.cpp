#include <iostream>
#include <optional>

#include "cli/DocumentSession.h"
#include "cli/Json.h"
#include "cli/Subcommands.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

void OpenLevelsPage(HostedControls& controls) { controls.tbsCon.Press(kLevelPage + 1); }

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

}  // namespace

bool ListLevels(const LevelsArguments& arguments) {
  DocumentSession session;
  if (!session.Open(arguments.file)) return false;
  HostedControls& c = session.Controls();
  OpenLevelsPage(c);
  std::vector<JsonObject> list;
  for (int i = 0; i < c.cboEpisode.ListCount(); ++i) {
    c.cboEpisode.Pick(i);
    if (arguments.json) {
      list.push_back({{"level", ToUtf8(c.cboEpisode.Text())},
                      {"map", ToUtf8(c.txtMap.Text())},
                      {"title", ToUtf8(c.txtTitle.Text())}});
    } else {
      std::cout << DocumentForTerminal(c.cboEpisode.Text()) << '\t'
                << DocumentForTerminal(c.txtMap.Text()) << '\t'
                << DocumentForTerminal(c.txtTitle.Text()) << '\n';
    }
  }
  if (arguments.json) std::cout << JsonText(list) << '\n';
  return true;
}

bool ShowOrChangeLevel(const LevelArguments& arguments) {
  DocumentSession session;
  if (!session.Open(arguments.file)) return false;
  HostedControls& c = session.Controls();
  OpenLevelsPage(c);
  const int entry = EntryOf(c.cboEpisode, arguments.level);
  if (entry == kNoSelection) {
    Complain(arguments.file + " has no level \"" + arguments.level + "\".");
    return false;
  }
  c.cboEpisode.Pick(entry);
  if (!arguments.map && !arguments.title) {
    std::cout << DocumentForTerminal(c.txtMap.Text()) << '\t'
              << DocumentForTerminal(c.txtTitle.Text()) << '\n';
    return true;
  }
  if (arguments.map && !Replace(c, c.txtMap, c.cmdInsert[0], *arguments.map, "map")) return false;
  if (arguments.title && !Replace(c, c.txtTitle, c.cmdInsert[1], *arguments.title, "title")) {
    return false;
  }
  return WriteResult(session.Editor().Bytes(), arguments.destination, arguments.file);
}

}  // namespace tessel::cli
