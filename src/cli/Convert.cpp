#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/look/Conversion.h"
#include "text/LineEnds.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

Conversion ConvertFile(std::string bytes, const std::string& name) try {
  return ConvertText(std::move(bytes));
} catch (const RuntimeError& error) {
  throw RuntimeError(name + ": " + error.what());
}

/// The control inserts CR LF, whatever the file has.
std::string InLineEndsOf(const LineEnds& own, std::string converted, const std::string& name) {
  if (own.Mixed()) {
    throw RuntimeError(name + ": its own line ends are mixed, so there are none to keep.");
  }
  return own.Only() ? WithLineEnds(converted, *own.Only()) : converted;
}

void NoteMixture(const LineEnds& own, std::string_view converted, FileReport& report) {
  if (!own.Only() || !LineEndsOf(converted).Mixed()) return;
  const std::string kind = NameOf(*own.Only());
  report.notes.push_back("its lines end with " + kind +
                         ", and those that the conversion inserted with CR LF; \"--line-ends "
                         "keep\" writes " +
                         kind + " everywhere.");
}

void ReportSteps(const std::vector<StepResult>& results, FileReport& report) {
  for (const StepResult& result : results) {
    report.rows.push_back(
        {std::int64_t{result.step}, ToUtf8(result.sought), result.found, result.changed});
  }
  report.facts.emplace_back(kChanged, std::ranges::count_if(results, &StepResult::changed));
}

const char* Describe(bool found, bool changed) {
  if (changed) return "changed";
  return found ? "found, nothing to change" : "not found";
}

std::string StepsAsText(const FileReport& report) {
  std::string text = ForTerminal(report.file) + ":\n";
  for (const Row& row : report.rows) {
    text += "  step " + std::to_string(std::get<std::int64_t>(row[0])) + "  " +
            Describe(std::get<bool>(row[2]), std::get<bool>(row[3])) + "  \"" +
            ForTerminal(std::get<std::string>(row[1])) + "\"\n";
  }
  return text;
}

}  // namespace

bool Convert(const ConvertArguments& arguments) {
  const auto convert = [&](std::string bytes, FileReport& report) {
    const LineEnds own = LineEndsOf(bytes);
    Conversion converted = ConvertFile(std::move(bytes), report.file);
    ReportSteps(converted.steps, report);
    if (arguments.keepLineEnds) return InLineEndsOf(own, std::move(converted.text), report.file);
    NoteMixture(own, converted.text, report);
    return std::move(converted.text);
  };
  return EditFiles(arguments,
                   {.command = "convert", .columns = {"step", "sought", "found", "changed"}},
                   convert, StepsAsText);
}

}  // namespace tessel::cli
