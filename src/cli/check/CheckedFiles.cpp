#include "cli/check/CheckedFiles.h"

#include <iomanip>
#include <sstream>

#include "check/rules/Rules.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

void AppendIndented(std::ostringstream& text, std::string_view example) {
  std::istringstream lines{DocumentForTerminal(example)};
  for (std::string line; std::getline(lines, line);) text << "    " << line << '\n';
}

}  // namespace

Region RegionOf(const check::LineIndex& lines, language::Range range) {
  return {lines.PlaceOf(range.begin), lines.PlaceOf(range.end)};
}

std::string FindingsAsText(const std::vector<CheckedFile>& files) {
  std::ostringstream text;
  for (const CheckedFile& file : files) {
    if (file.findings.empty()) continue;
    const check::LineIndex lines(file.bytes);
    const std::string name = ForTerminal(file.name);
    for (const check::Finding& finding : file.findings) {
      const language::LineColumn place = lines.PlaceOf(finding.range.begin);
      text << name << ':' << place.line << ':' << place.column << ": "
           << NameOf(finding.rule->severity) << ": " << ForTerminal(finding.text) << " ["
           << finding.rule->id << "]\n";
    }
  }
  return text.str();
}

FindingCount CountFindings(const std::vector<CheckedFile>& files) {
  FindingCount count;
  for (const CheckedFile& file : files) {
    for (const check::Finding& finding : file.findings) {
      if (finding.rule->severity == check::Severity::kError) ++count.errors;
      if (finding.rule->severity == check::Severity::kWarning) ++count.warnings;
    }
  }
  return count;
}

std::string RuleList() {
  std::ostringstream text;
  for (const check::Rule* rule : check::AllRules()) {
    text << std::left << std::setw(22) << rule->id << std::setw(9) << NameOf(rule->severity)
         << rule->summary << '\n';
  }
  return text.str();
}

std::string Explanation(const check::Rule& rule) {
  std::ostringstream text;
  text << rule.id << ": " << NameOf(rule.severity) << ": " << rule.summary << "\n\n"
       << rule.explanation << "\n\nGood:\n\n";
  AppendIndented(text, rule.good);
  text << "\nBad:\n\n";
  AppendIndented(text, rule.bad);
  return text.str();
}

}  // namespace tessel::cli
