// One command over many files: what all of them do with files, reports and errors.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/files/Output.h"
#include "cli/report/Report.h"

namespace tessel::cli {

/// What every command that looks at files is asked for.
struct LookArguments {
  std::vector<std::string> files;
  Format format = Format::kText;
  bool quiet = false;  ///< print errors only
};

/// What every command that changes files is asked for.
struct EditArguments : LookArguments {
  Destination destination;
  bool report = false;  ///< list on standard error what was done
};

/// The fact that says how much an edit changed.
inline constexpr const char* kChanged = "changed";

/// Fills the rows from a file's bytes. A RuntimeError says why it cannot.
using Look = std::function<void(std::string bytes, FileReport& report)>;
/// The same, and gives the new bytes. The report has the fact kChanged.
using Edit = std::function<std::string(std::string bytes, FileReport& report)>;
/// The rows as lines for people.
using RowsAsText = std::function<std::string(const FileReport& report)>;

/// Looks at each file and prints what was found. Of several files each line has the name in front.
/// Files before and after one that fails are looked at all the same; false then.
bool LookAtFiles(const LookArguments& arguments, Report report, const Look& look,
                 const RowsAsText& text);

/// Changes each file, and writes it or shows the difference. Of several files a line tells how much
/// was changed in each. Files before and after one that fails are changed all the same; false then.
bool EditFiles(const EditArguments& arguments, Report report, const Edit& edit,
               const RowsAsText& text);

}  // namespace tessel::cli
