// What a command found or did, file by file, for people and for other programs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tessel::cli {

enum class Format { kText, kTsv, kJson };

/// Nothing, a text in UTF-8, a number, or yes and no.
using Cell = std::variant<std::nullptr_t, std::string, std::int64_t, bool>;
/// A cell for each column of its report.
using Row = std::vector<Cell>;

struct FileReport {
  std::string file;                                 ///< as it was named
  std::vector<std::pair<std::string, Cell>> facts;  ///< what holds for the whole file, by name
  std::vector<Row> rows;
  std::vector<std::string> notes;         ///< what the user should know beside
  std::optional<std::string> error;       ///< why nothing was done
  std::optional<std::string> difference;  ///< what would be written
};

struct Report {
  std::string command;
  std::vector<std::string> columns = {};
  std::vector<FileReport> files = {};
};

/// A text, or nothing.
Cell CellOf(const std::optional<std::string>& text);

/// A heading and a line for each row: the file's name, then the cells, with tabs between them. A
/// missing cell is empty; tabs and line breaks in one become blanks. Harmless for a terminal.
std::string ReportAsTsv(const Report& report);

/// The object that docs/json.md describes, indented. Harmless for a terminal.
std::string ReportAsJson(const Report& report);

}  // namespace tessel::cli
