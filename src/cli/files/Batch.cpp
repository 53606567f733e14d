#include "cli/files/Batch.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/files/Input.h"
#include "cli/report/Complaint.h"
#include "cli/report/Difference.h"
#include "cli/report/Json.h"
#include "cli/report/Terminal.h"
#include "posix/EditTurn.h"
#include "posix/PathResolution.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

/// Does the work on each file; an error ends the work on its file.
template <class Work>
bool ForEachFile(const LookArguments& arguments, Report& report, Work work) {
  for (const std::string& name : arguments.files) {
    FileReport& file = report.files.emplace_back();
    file.file = name;
    try {
      work(file);
    } catch (const RuntimeError& error) {
      file.error = error.what();
      Complain(error.what());
    }
    if (arguments.quiet) continue;
    for (const std::string& note : file.notes) Complain(name + ": " + note);
  }
  return std::ranges::none_of(report.files, [](const FileReport& file) { return !!file.error; });
}

void PrintForPrograms(const Report& report, Format format) {
  if (format == Format::kJson) std::cout << ReportAsJson(report) << '\n';
  if (format == Format::kTsv) std::cout << ReportAsTsv(report);
}

void PrintLines(std::string_view text, const std::string& prefix) {
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    std::cout << prefix << text.substr(0, length);
    text.remove_prefix(length);
  }
}

void ShowDifference(const EditArguments& arguments, FileReport& file, const std::string& before,
                    const std::string& after) {
  std::string difference = UnifiedDifference(before, after, file.file);
  if (arguments.format == Format::kJson) {
    file.difference = std::move(difference);
  } else if (arguments.format == Format::kText) {
    std::cout << (TerminalWantsColour() ? InColours(difference)
                  : IsTerminal()        ? DocumentForTerminal(difference)
                                        : difference);
  }
}

void TellHowMuch(const FileReport& file) {
  const auto fact = std::ranges::find(file.facts, kChanged, &std::pair<std::string, Cell>::first);
  const auto changed = std::get<std::int64_t>(fact->second);
  std::cout << ForTerminal(file.file) << ": " << changed
            << (changed == 1 ? " change\n" : " changes\n");
}

void PreviewEdit(const EditArguments& arguments, FileReport& file, const Edit& edit) {
  const std::string before = ReadInput(file.file);
  ShowDifference(arguments, file, before, edit(before, file));
}

void EditInPlace(const EditArguments& arguments, FileReport& file, const Edit& edit) {
  const posix::EditTurn turn(posix::ResolveIgnoringCase(file.file));
  WriteResult(edit(ReadInput(file.file), file), arguments.destination, {file.file, turn.Found()});
}

void EditFile(const EditArguments& arguments, FileReport& file, const Edit& edit) {
  const Destination& destination = arguments.destination;
  if (destination.dryRun) return PreviewEdit(arguments, file, edit);
  if (destination.inPlace) return EditInPlace(arguments, file, edit);
  WriteResult(edit(ReadInput(file.file), file), destination, {file.file, std::nullopt});
}

}  // namespace

bool LookAtFiles(const LookArguments& arguments, Report report, const Look& look,
                 const RowsAsText& text) {
  const bool several = arguments.files.size() > 1;
  const bool good = ForEachFile(arguments, report, [&](FileReport& file) {
    look(ReadInput(file.file), file);
    if (arguments.format != Format::kText) return;
    PrintLines(text(file), several ? ForTerminal(file.file) + ": " : "");
  });
  PrintForPrograms(report, arguments.format);
  return good;
}

bool EditFiles(const EditArguments& arguments, Report report, const Edit& edit,
               const RowsAsText& text) {
  if (!arguments.destination.dryRun) {
    RefuseToReplaceByBackups(arguments.files, arguments.destination);
  }
  const bool forPeople = arguments.format == Format::kText;
  const bool several = arguments.files.size() > 1;
  const bool tells = forPeople && several && !arguments.quiet && !arguments.destination.dryRun;
  const bool good = ForEachFile(arguments, report, [&](FileReport& file) {
    EditFile(arguments, file, edit);
    if (forPeople && arguments.report) std::cerr << text(file);
    if (tells) TellHowMuch(file);
  });
  PrintForPrograms(report, arguments.format);
  return good;
}

}  // namespace tessel::cli
