#include <iomanip>
#include <sstream>

#include "cli/Subcommands.h"
#include "cli/look/ItemRows.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

// Places in kValueColumns.
constexpr std::size_t kSection = 0, kItem = 1, kValue = 3, kProblem = 5;

std::string ShownIn(const Row& row, std::size_t column) {
  const auto* text = std::get_if<std::string>(&row[column]);
  return text == nullptr ? std::string() : ForTerminal(*text);
}

std::string ListAsText(const FileReport& report) {
  std::ostringstream text;
  for (const Row& row : report.rows) {
    const std::string value = ShownIn(row, kValue);
    const std::string problem = ShownIn(row, kProblem);
    text << std::left << std::setw(8) << ShownIn(row, kSection) << std::setw(34)
         << ShownIn(row, kItem) << (value.empty() ? "-" : value);
    if (!problem.empty()) text << "  (" << problem << ')';
    text << '\n';
  }
  return text.str();
}

std::string ValueAsText(const FileReport& report) {
  return ShownIn(report.rows.front(), kValue) + '\n';
}

}  // namespace

bool ListSettings(const SettingsArguments& arguments) {
  const std::vector<WantedItem> items = ItemsOf(arguments.section);
  const auto list = [&](const std::string& bytes, FileReport& report) {
    ValueLook look(bytes);
    for (const WantedItem& item : items) {
      report.rows.push_back(ValueRow(look, item, look.LookAt(item)));
    }
  };
  return LookAtFiles(arguments, {.command = "settings", .columns = kValueColumns}, list,
                     ListAsText);
}

bool GetSetting(const GetArguments& arguments) {
  const auto get = [&](const std::string& bytes, FileReport& report) {
    ValueLook look(bytes);
    const WantedItem item = ItemNamed(look, report.file, arguments.item);
    report.rows.push_back(ValueRow(look, item, ValueOf(look, report.file, item, arguments.line)));
  };
  return LookAtFiles(arguments, {.command = "get", .columns = kValueColumns}, get, ValueAsText);
}

}  // namespace tessel::cli
