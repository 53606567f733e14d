#include "check/Check.h"

#include <iostream>
#include <utility>

#include "base/RuntimeError.h"
#include "check/rules/Rules.h"
#include "cli/Subcommands.h"
#include "cli/check/CheckedFiles.h"
#include "cli/check/StoredKnowledge.h"
#include "cli/files/Input.h"
#include "cli/report/Complaint.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

/// Those that can be read; of the others the report has the reason.
std::vector<CheckedFile> ReadAll(const CheckArguments& arguments, Report& report) {
  std::vector<CheckedFile> files;
  for (const std::string& name : arguments.files) {
    try {
      files.push_back({name, ReadInput(name), {}});
    } catch (const RuntimeError& error) {
      FileReport& file = report.files.emplace_back();
      file.file = name;
      file.error = error.what();
      Complain(error.what());
    }
  }
  return files;
}

void CheckAll(const CheckArguments& arguments, std::vector<CheckedFile>& files) {
  const StoredKnowledge stored = ReadKnowledge(arguments.store);
  std::vector<check::Source> sources;
  sources.reserve(files.size());
  for (const CheckedFile& file : files) sources.push_back({file.name, file.bytes});
  check::Findings findings = check::Check(sources, stored.AsKnowledge(), arguments.rules);
  for (check::Finding& finding : findings) {
    files[finding.file].findings.push_back(std::move(finding));
  }
}

FileReport ReportOf(const CheckedFile& file) {
  FileReport report;
  report.file = file.name;
  const check::LineIndex lines(file.bytes);
  for (const check::Finding& finding : file.findings) {
    const language::LineColumn place = lines.PlaceOf(finding.range.begin);
    report.rows.push_back({std::int64_t{place.line}, std::int64_t{place.column},
                           std::string(NameOf(finding.rule->severity)),
                           std::string(finding.rule->id), finding.text,
                           finding.fix ? Cell(finding.fix->what) : Cell(nullptr)});
  }
  return report;
}

void Print(const CheckArguments& arguments, const std::vector<CheckedFile>& files, Report& report) {
  if (arguments.sarif) {
    std::cout << FindingsAsSarif(files, TESSEL_VERSION);
    return;
  }
  if (arguments.format == Format::kText) {
    std::cout << FindingsAsText(files);
    return;
  }
  for (const CheckedFile& file : files) report.files.push_back(ReportOf(file));
  std::cout << (arguments.format == Format::kJson ? ReportAsJson(report) + '\n'
                                                  : ReportAsTsv(report));
}

}  // namespace

bool CheckFiles(const CheckArguments& arguments) {
  Report report = {.command = "check",
                   .columns = {"line", "column", "severity", "rule", "text", "fix"}};
  std::vector<CheckedFile> files = ReadAll(arguments, report);
  const bool allRead = report.files.empty();
  CheckAll(arguments, files);
  Print(arguments, files, report);
  const FindingCount count = CountFindings(files);
  const bool bad = count.errors > 0 || (arguments.warningsAreErrors && count.warnings > 0);
  return allRead && !bad;
}

bool ExplainRule(const check::Rule& rule) {
  std::cout << Explanation(rule);
  return true;
}

bool ListRules() {
  std::cout << RuleList();
  return true;
}

}  // namespace tessel::cli
