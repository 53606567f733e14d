#include "cli/report/Report.h"

#include <algorithm>

#include "text/SafeText.h"

namespace tessel::cli {
namespace {

struct AsText {
  std::string operator()(std::nullptr_t) const { return {}; }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(bool yes) const { return yes ? "yes" : "no"; }
};

std::string TsvCell(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return ForTerminal(text);
}

}  // namespace

Cell CellOf(const std::optional<std::string>& text) { return text ? Cell(*text) : Cell(nullptr); }

std::string ReportAsTsv(const Report& report) {
  std::string tsv = "file";
  for (const std::string& column : report.columns) tsv += '\t' + column;
  tsv += '\n';
  for (const FileReport& file : report.files) {
    for (const Row& row : file.rows) {
      tsv += TsvCell(file.file);
      for (const Cell& cell : row) tsv += '\t' + TsvCell(std::visit(AsText{}, cell));
      tsv += '\n';
    }
  }
  return tsv;
}

}  // namespace tessel::cli
