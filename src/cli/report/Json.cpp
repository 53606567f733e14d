#include "cli/report/Json.h"

#include <nlohmann/json.hpp>

#include "cli/report/Report.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using Json = nlohmann::ordered_json;

// Raised when a member changes its meaning or goes; new members leave it as it is.
constexpr int kSchemaVersion = 1;

Json ToJson(const Cell& cell) {
  return std::visit([](const auto& value) { return Json(value); }, cell);
}

Json ToJson(const Row& row, const std::vector<std::string>& columns) {
  Json members = Json::object();
  for (std::size_t i = 0; i < row.size(); ++i) members[columns[i]] = ToJson(row[i]);
  return members;
}

Json ToJson(const FileReport& file, const std::vector<std::string>& columns) {
  Json members = {{"file", file.file}, {"error", ToJson(CellOf(file.error))}};
  for (const auto& [name, cell] : file.facts) members[name] = ToJson(cell);
  members["notes"] = file.notes;
  members["rows"] = Json::array();
  for (const Row& row : file.rows) members["rows"].push_back(ToJson(row, columns));
  if (file.difference) members["difference"] = ToUtf8(*file.difference);
  return members;
}

}  // namespace

std::string ReportAsJson(const Report& report) {
  Json json = {{"schema", "tessel-report"},
               {"version", kSchemaVersion},
               {"command", report.command},
               {"files", Json::array()}};
  for (const FileReport& file : report.files) {
    json["files"].push_back(ToJson(file, report.columns));
  }
  // Names of files are any bytes.
  return JsonForTerminal(json.dump(2, ' ', false, Json::error_handler_t::replace));
}

std::string JsonText(const std::vector<std::array<std::int64_t, 3>>& list) {
  return Json(list).dump();
}

}  // namespace tessel::cli
