// The files of one check, read and looked at.
#pragma once

#include <string>
#include <vector>

#include "check/Check.h"
#include "check/facts/LineIndex.h"

namespace tessel::cli {

/// A file and what was found in it.
struct CheckedFile {
  std::string name;  ///< as it was given
  std::string bytes;
  check::Findings findings;  ///< in the order of the text
};

/// Begin and end of a finding or a replacement, as people count.
struct Region {
  language::LineColumn begin, end;
};
Region RegionOf(const check::LineIndex& lines, language::Range range);

/// A line for each finding, as compilers print them: "User.con:3:8: warning: text [rule]". Harmless
/// for a terminal.
std::string FindingsAsText(const std::vector<CheckedFile>& files);

/// A SARIF 2.1.0 log with all rules and findings; columns count characters.
std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const std::string& version);

/// How many findings there are of each severity.
struct FindingCount {
  std::size_t errors = 0, warnings = 0;
};
FindingCount CountFindings(const std::vector<CheckedFile>& files);

/// All rules, a line each, and one with its examples. The latter is harmless for a terminal.
std::string RuleList();
std::string Explanation(const check::Rule& rule);

}  // namespace tessel::cli
