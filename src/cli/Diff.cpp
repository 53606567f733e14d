#include <iostream>

#include "cli/Subcommands.h"
#include "cli/files/Input.h"
#include "cli/report/Complaint.h"
#include "cli/values/ValueDifference.h"
#include "cli/values/ValuePage.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

std::string ShownText(const std::optional<std::string>& bytes) {
  return bytes ? ForTerminal(ToUtf8(*bytes)) : "-";
}

std::string ChangesAsLines(const std::vector<ValueChange>& changes) {
  std::string text;
  for (const ValueChange& change : changes) {
    text += ForTerminal(ShownName(change.name)) + ": " + ShownText(change.before) + " -> " +
            ShownText(change.after) + '\n';
  }
  return text;
}

/// Written so that a Markdown table shows it as it is.
std::string MarkdownCell(const std::string& text) {
  std::string cell;
  for (const char c : text) {
    if (std::string_view("\\`*_|<>[]&#~").find(c) != std::string_view::npos) cell += '\\';
    cell += c;
  }
  return cell;
}

std::string ChangesAsMarkdown(const DiffArguments& arguments,
                              const std::vector<ValueChange>& changes) {
  const auto row = [](const std::string& what, const std::string& before,
                      const std::string& after) {
    return "| " + MarkdownCell(what) + " | " + MarkdownCell(before) + " | " + MarkdownCell(after) +
           " |\n";
  };
  std::string table =
      row("value", ForTerminal(arguments.before), ForTerminal(arguments.after)) + "|---|---|---|\n";
  for (const ValueChange& change : changes) {
    table +=
        row(ForTerminal(ShownName(change.name)), ShownText(change.before), ShownText(change.after));
  }
  return table;
}

/// What the second file has, as a page that can be applied to the first.
std::string ChangesAsPage(const std::vector<ValueChange>& changes) {
  std::vector<PageValue> values;
  for (const ValueChange& change : changes) {
    if (change.after) values.push_back({change.name, *change.after});
  }
  return PageAsToml(values);
}

Cell TextOrNull(const std::optional<std::string>& bytes) {
  return bytes ? Cell(ToUtf8(*bytes)) : Cell(nullptr);
}

Report ReportOf(const DiffArguments& arguments, const ValueDifference& difference) {
  FileReport file;
  file.file = arguments.before;
  file.facts.emplace_back("other", arguments.after);
  for (const std::string& name : difference.doubled) {
    file.notes.push_back(name + " occurs twice in one file; the first counts.");
  }
  for (const ValueChange& change : difference.changes) {
    file.rows.push_back({std::string(NamesOf(change.name.kind).word), ToUtf8(change.name.name),
                         change.name.field, TextOrNull(change.before), TextOrNull(change.after)});
  }
  return {"diff", {"kind", "name", "field", "old", "new"}, {file}};
}

}  // namespace

bool DiffValues(const DiffArguments& arguments) {
  const ValueDifference difference =
      DifferenceOf(ReadInput(arguments.before), ReadInput(arguments.after));
  const Report report = ReportOf(arguments, difference);
  for (const std::string& note : report.files.front().notes) Complain(note);
  switch (arguments.form) {
    case DiffForm::kText:
      std::cout << ChangesAsLines(difference.changes);
      break;
    case DiffForm::kMarkdown:
      std::cout << ChangesAsMarkdown(arguments, difference.changes);
      break;
    case DiffForm::kToml:
      std::cout << ChangesAsPage(difference.changes);
      break;
    case DiffForm::kJson:
      std::cout << ReportAsJson(report) << '\n';
      break;
    case DiffForm::kTsv:
      std::cout << ReportAsTsv(report);
      break;
  }
  return true;
}

}  // namespace tessel::cli
