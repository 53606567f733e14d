#include <cmath>
#include <iomanip>
#include <iostream>
#include <vector>

#include "cli/DocumentSession.h"
#include "cli/PanelItems.h"
#include "cli/Subcommands.h"
#include "randomizer/frmRand.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

// Presses what a person would press in the dialog of the control.
void Answer(frmRand& form, const RandomizeArguments& arguments) {
  form.cmbChoose[0].Type(arguments.lower);
  form.cmbChoose[1].Type(arguments.upper);
  if (arguments.keepBelow) form.chkLvLw.Press();
  if (arguments.keepAbove) form.chkLvUp.Press();
  form.cmdOk.Press();
}

void StartRandomizer(DocumentSession& session, const std::string& section) {
  Toolbar& toolbar = session.Controls().tbToolBar;
  if (section == "All") return toolbar.Press("RandAll");
  const int items = toolbar.MenuCount("RandSec");
  for (int item = 1; item <= items; ++item) {
    if (toolbar.MenuItem("RandSec", item).key == section) {
      return toolbar.PressMenuItem("RandSec", item);
    }
  }
}

using Values = std::vector<std::optional<std::string>>;

Values ReadValues(const std::string& text, const std::vector<PanelItem>& items) {
  DocumentSession session;
  session.Editor().SetText(text);
  Values values;
  for (const PanelItem& item : items) values.push_back(ReadItem(session, item));
  return values;
}

void Report(const std::string& section, const std::string& before, const std::string& after) {
  std::vector<PanelItem> items = PanelItems();
  std::erase_if(items, [&](const PanelItem& item) {
    return item.entry < 0 || (section != "All" && item.section != section);
  });
  const Values old = ReadValues(before, items);
  const Values now = ReadValues(after, items);
  for (std::size_t i = 0; i < items.size(); ++i) {
    std::cerr << std::left << std::setw(34) << items[i].name << std::right << std::setw(8)
              << DocumentForTerminal(old[i].value_or("-")) << " -> " << std::setw(8)
              << DocumentForTerminal(now[i].value_or("-")) << '\n';
  }
}

// A bound of 0 makes the control change nothing: here that would look like success.
bool RefuseNothing(const RandomizeArguments& arguments) {
  for (const std::string& bound : {arguments.lower, arguments.upper}) {
    if (bound.empty() || std::nearbyint(NumericValue(bound)) != 0) continue;
    Complain("\"" + bound + "\" counts as 0, and nothing is randomized when a bound is 0.");
    return true;
  }
  return false;
}

}  // namespace

bool Randomize(const RandomizeArguments& arguments) {
  DocumentSession session(arguments.seed);
  if (!session.Open(arguments.file)) return false;
  const std::string before = session.Editor().Text();
  session.Forms().answer = [&](Form& form) { Answer(dynamic_cast<frmRand&>(form), arguments); };
  if (!session.Run([&] { StartRandomizer(session, arguments.section); })) return false;
  if (RefuseNothing(arguments)) return false;
  const std::string after = session.Editor().Text();
  if (!WriteResult(after, arguments.destination, arguments.file)) return false;
  if (arguments.report) Report(arguments.section, before, after);
  return true;
}

}  // namespace tessel::cli
