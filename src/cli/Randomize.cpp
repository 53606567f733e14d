#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Draws.h"
#include "cli/Subcommands.h"
#include "cli/files/Splices.h"
#include "cli/look/ItemRows.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

/// The items of the sections, but those that are no numbers by nature, in the control's order.
std::vector<WantedItem> NumbersOf(const std::vector<SectionBounds>& sections) {
  std::vector<WantedItem> items = ItemsOf("All");
  std::erase_if(items, [&](const WantedItem& item) {
    const auto isItsSection = [&](const SectionBounds& bounds) {
      return bounds.section == "All" || bounds.section == item.panel->section;
    };
    return item.panel->entry < 0 || std::ranges::none_of(sections, isItsSection);
  });
  return items;
}

std::vector<LookedAt> LookAtAll(ValueLook& look, const std::vector<WantedItem>& items) {
  std::vector<LookedAt> looked;
  looked.reserve(items.size());
  for (const WantedItem& item : items) {
    looked.push_back(look.LookAt(item));
    const bool missing = !looked.back().value && looked.back().problem.empty();
    if (missing) looked.back().problem = "it is not defined";
  }
  return looked;
}

/// Around what is no number nothing can be drawn.
void SkipWhatIsNoNumber(const ValueLook& look, std::vector<LookedAt>& all) {
  for (LookedAt& looked : all) {
    if (!looked.value || language::NumberOf(look.TextOf(*looked.value))) continue;
    looked.problem = "\"" + ToUtf8(look.TextOf(*looked.value)) + "\" is no number";
    looked.value.reset();
  }
}

std::vector<Drawn> AsDrawn(const ValueLook& look, const std::vector<WantedItem>& items,
                           const std::vector<LookedAt>& looked) {
  std::vector<Drawn> drawn;
  drawn.reserve(items.size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    Drawn& item = drawn.emplace_back();
    item.define = items[i].define;
    if (looked[i].value) item.value = look.TextOf(*looked[i].value);
  }
  return drawn;
}

std::string SectionsOf(const RandomizeArguments& arguments) {
  std::string names;
  for (const SectionBounds& bounds : arguments.bounds) {
    names += (names.empty() ? "" : ", ") + bounds.section;
  }
  return names;
}

std::vector<Splice> SplicesFor(const std::string& bytes, const RandomizeArguments& arguments,
                               FileReport& report) {
  const std::vector<WantedItem> items = NumbersOf(arguments.bounds);
  ValueLook look(bytes);
  std::vector<LookedAt> looked = LookAtAll(look, items);
  if (arguments.percent) SkipWhatIsNoNumber(look, looked);
  if (std::ranges::none_of(looked, [](const LookedAt& item) { return item.value.has_value(); })) {
    throw RuntimeError(report.file + " has no value to randomize (section " +
                       SectionsOf(arguments) + ").");
  }
  const std::vector<Drawn> present = AsDrawn(look, items, looked);
  const std::vector<std::string> values =
      arguments.percent ? DrawAround(present, *arguments.percent, arguments.seed)
                        : DrawBetween(present, arguments);
  std::vector<Splice> splices;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto fresh = looked[i].value ? std::optional(values.at(i)) : std::nullopt;
    report.rows.push_back(ChangeRow(look, items[i], looked[i], fresh));
    if (fresh) splices.push_back({*looked[i].value, *fresh});
  }
  return splices;
}

/// What a file of its kind lacks is told in one line; all else is told line by line.
void NoteSkipped(const std::vector<WantedItem>& items, FileReport& report) {
  std::int64_t missing = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto* problem = std::get_if<std::string>(&report.rows[i].back());
    if (problem == nullptr) continue;
    if (*problem == "it is not defined") {
      ++missing;
    } else {
      report.notes.push_back("skipped " + items[i].name + ": " + *problem + ".");
    }
  }
  if (missing != 0) {
    report.notes.push_back("skipped " + std::to_string(missing) +
                           " settings that it does not define; --report lists them.");
  }
}

std::string RandomizedAsText(const FileReport& report) {
  const auto seed = std::get<std::int64_t>(report.facts.front().second);
  return ForTerminal(report.file) + ": seed " + std::to_string(seed) + '\n' +
         ChangesAsText(report.rows);
}

}  // namespace

bool Randomize(const RandomizeArguments& arguments) {
  const auto randomize = [&](const std::string& bytes, FileReport& report) {
    report.facts.emplace_back("seed", std::int64_t{arguments.seed});
    std::vector<Splice> splices = SplicesFor(bytes, arguments, report);
    report.facts.emplace_back(kChanged, CountChanges(report.rows));
    NoteSkipped(NumbersOf(arguments.bounds), report);
    return Spliced(bytes, std::move(splices));
  };
  return EditFiles(arguments, {.command = "randomize", .columns = kChangeColumns}, randomize,
                   RandomizedAsText);
}

}  // namespace tessel::cli
