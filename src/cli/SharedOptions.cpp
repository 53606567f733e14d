#include "cli/SharedOptions.h"

#include <algorithm>

#include "cli/report/Suggestion.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

std::string ListOf(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += (list.empty() ? "" : ", ") + word;
  return list;
}

std::string RefuseEmpty(const std::string& name) {
  return name.empty() ? "the name of the file is empty" : "";
}

}  // namespace

void TakeFileName(CLI::Option& option) { option.type_name("FILE")->check(RefuseEmpty); }

void TakeOneOf(CLI::Option& option, const std::vector<std::string>& words) {
  const auto choose = [words](std::string& text) -> std::string {
    const auto chosen = std::ranges::find_if(
        words, [&](const std::string& word) { return EqualIgnoringAsciiCase(word, text); });
    if (chosen == words.end()) {
      const std::string guess = DidYouMean(text, words);
      return "\"" + text + "\" is none of " + ListOf(words) + (guess.empty() ? "" : ". " + guess);
    }
    text = *chosen;
    return {};
  };
  option.transform(CLI::Validator(choose, ""));
}

void TakeDocumentText(CLI::Option& option) {
  const auto convert = [](std::string& text) -> std::string {
    const auto bytes = FromTerminal(text);
    if (!bytes) return "\"" + text + "\" has a character that a CON file cannot hold";
    text = *bytes;
    return {};
  };
  option.transform(CLI::Validator(convert, ""));
}

std::string DocumentTextOf(const std::string& typed, const std::string& name) {
  if (auto bytes = FromTerminal(typed)) return *bytes;
  throw CLI::ValidationError(name, "\"" + typed + "\" has a character that a CON file cannot hold");
}

void AddFiles(CLI::App& command, std::vector<std::string>& files) {
  CLI::Option* option = command.add_option("FILE", files, "the CON files; \"-\" is standard input");
  option->required();
  TakeFileName(*option);
}

CLI::Option* AddOutput(CLI::App& command, Destination& destination) {
  CLI::Option* option = command.add_option(
      "-o,--output", destination.file, "write the result to this file; \"-\" is standard output");
  TakeFileName(*option);
  command.add_flag("--force", destination.force, "replace an existing file");
  return option;
}

void AddFormat(CLI::App& command, Format& format) {
  CLI::Option* json = command.add_flag_callback(
      "--json", [&format] { format = Format::kJson; }, "print the report as JSON");
  command
      .add_flag_callback(
          "--tsv", [&format] { format = Format::kTsv; }, "print the report as a table with tabs")
      ->excludes(json);
}

void AddLine(CLI::App& command, std::optional<std::int64_t>& line) {
  command.add_option("--line", line, "the line of the define or level, if there are several")
      ->type_name("NUMBER")
      ->check(CLI::PositiveNumber);
}

void AddEdit(CLI::App& command, EditArguments& edit) {
  Destination& destination = edit.destination;
  CLI::Option* output = AddOutput(command, destination);
  CLI::Option* inPlace =
      command.add_flag("--in-place", destination.inPlace, "overwrite the file itself")
          ->excludes(output);
  command
      .add_flag("--backup{~}", destination.backup, "back up the old file as FILE~ or FILESUFFIX")
      ->type_name("[=SUFFIX]")
      ->check([](const std::string& suffix) {
        const bool bad = suffix.empty() || suffix.find('/') != suffix.npos;
        return bad ? std::string("the suffix is empty or has a \"/\"") : std::string();
      })
      ->needs(inPlace);
  command.add_flag("--dry-run", destination.dryRun, "write nothing, print the difference");
  command.add_flag("--report", edit.report, "list on standard error what was done");
  command.add_flag("--quiet", edit.quiet, "print errors only");
  AddFormat(command, edit.format);
}

void CheckFiles(const CLI::App& command, const std::vector<std::string>& files) {
  for (const std::string& file : files) {
    if (file.empty()) throw CLI::ValidationError("FILE", RefuseEmpty(file));
  }
  if (std::ranges::count(files, "-") > 1) {
    throw CLI::ValidationError(command.get_name(), "standard input can be read only once");
  }
}

void CheckEdit(const CLI::App& command, const EditArguments& edit) {
  CheckFiles(command, edit.files);
  const Destination& destination = edit.destination;
  if (edit.files.size() > 1 && !destination.inPlace && !destination.dryRun) {
    throw CLI::ValidationError(command.get_name(), "several files need --in-place or --dry-run");
  }
  if (edit.format != Format::kText && !destination.LeavesStandardOutput()) {
    throw CLI::ValidationError(command.get_name(),
                               "standard output has the result: --json and --tsv need --in-place, "
                               "-o FILE or --dry-run");
  }
}

}  // namespace tessel::cli
