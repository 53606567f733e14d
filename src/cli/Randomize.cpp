#include <cmath>
#include <iomanip>
#include <iostream>
#include <vector>

#include "cli/CommonOptions.h"
#include "cli/DocumentSession.h"
#include "cli/PanelItems.h"
#include "cli/SafeText.h"
#include "cli/Subcommands.h"
#include "randomizer/frmRand.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

struct Options {
  std::string file;
  std::string section;
  std::string lower, upper;
  bool keepBelow = false, keepAbove = false, report = false;
  std::uint32_t seed = LinearCongruentialRandom::kStart;
  Destination destination;
};

// Presses what a person would press in the dialog of the control.
void Answer(frmRand& form, const Options& options) {
  form.cmbChoose[0].Type(options.lower);
  form.cmbChoose[1].Type(options.upper);
  if (options.keepBelow) form.chkLvLw.Press();
  if (options.keepAbove) form.chkLvUp.Press();
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
bool RefuseNothing(const Options& options) {
  for (const std::string& bound : {options.lower, options.upper}) {
    if (bound.empty() || std::nearbyint(NumericValue(bound)) != 0) continue;
    Complain("\"" + bound + "\" counts as 0, and nothing is randomized when a bound is 0.");
    return true;
  }
  return false;
}

bool Run(const Options& options) {
  DocumentSession session(options.seed);
  if (!session.Open(options.file)) return false;
  const std::string before = session.Editor().Text();
  session.Forms().answer = [&](Form& form) { Answer(dynamic_cast<frmRand&>(form), options); };
  if (!session.Run([&] { StartRandomizer(session, options.section); })) return false;
  if (RefuseNothing(options)) return false;
  const std::string after = session.Editor().Text();
  if (!WriteResult(after, options.destination, options.file)) return false;
  if (options.report) Report(options.section, before, after);
  return true;
}

}  // namespace

void AddRandomize(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = program.add_subcommand("randomize", "Randomize the values of a user file");
  AddFile(*command, options->file);
  command->add_option("--section", options->section, "All, Player, Weapon, Enemy or Misc")
      ->required()
      ->transform(CLI::IsMember(
          std::vector<std::string>{"All", "Player", "Weapon", "Enemy", "Misc"}, CLI::ignore_case));
  command->add_option("--lower", options->lower, "the smallest value drawn")->required();
  command->add_option("--upper", options->upper, "the largest value drawn")->required();
  command->add_flag("--keep-below", options->keepBelow, "leave smaller values as they are");
  command->add_flag("--keep-above", options->keepAbove, "leave larger values as they are");
  command->add_option("--seed", options->seed, "start the random numbers at another place")
      ->check(CLI::Range(0U, (1U << 24) - 1));
  command->add_flag("--report", options->report, "list old and new values on standard error");
  AddDestination(*command, options->destination);
  command->callback([options, &status] {
    if (!Run(*options)) status = kFailed;
  });
}

}  // namespace tessel::cli
