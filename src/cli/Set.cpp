#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/files/Splices.h"
#include "cli/look/ItemRows.h"
#include "cli/look/NewValue.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

void RefuseTwice(const std::vector<Splice>& splices, language::Range range,
                 const WantedItem& item) {
  if (std::ranges::find(splices, range, &Splice::range) == splices.end()) return;
  throw RuntimeError(item.name + " is set twice.");
}

/// What is to be written where; the report says so.
std::vector<Splice> ValuesToWrite(const std::string& bytes, const SetArguments& arguments,
                                  FileReport& report) {
  ValueLook look(bytes);
  std::vector<Splice> splices;
  for (const Assignment& assignment : arguments.values) {
    const WantedItem item = ItemNamed(look, report.file, assignment.item);
    const LookedAt looked = ValueOf(look, report.file, item, arguments.line);
    std::string value = CheckedValue(item, look.TextOf(*looked.value), assignment.value);
    RefuseTwice(splices, *looked.value, item);
    report.rows.push_back(ChangeRow(look, item, looked, value));
    splices.push_back({*looked.value, std::move(value)});
    RefuseToRunIntoTheRest(bytes, splices.back(), item);
  }
  return splices;
}

}  // namespace

bool SetSettings(const SetArguments& arguments) {
  const auto set = [&](const std::string& bytes, FileReport& report) {
    std::vector<Splice> splices = ValuesToWrite(bytes, arguments, report);
    report.facts.emplace_back(kChanged, CountChanges(report.rows));
    return Spliced(bytes, std::move(splices));
  };
  return EditFiles(arguments, {.command = "set", .columns = kChangeColumns}, set,
                   [](const FileReport& report) { return ChangesAsText(report.rows); });
}

}  // namespace tessel::cli
