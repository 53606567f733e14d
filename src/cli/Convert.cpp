#include <iostream>
#include <vector>

#include "cli/CommonOptions.h"
#include "cli/DocumentSession.h"
#include "cli/SafeText.h"
#include "cli/Subcommands.h"
#include "converter/Converter.h"

namespace tessel::cli {
namespace {

struct Options {
  std::vector<std::string> files;
  Destination destination;
  bool report = false;
};

const char* Describe(const StepResult& result) {
  if (result.changed) return "changed";
  return result.found ? "found, nothing to change" : "not found";
}

void Report(const std::string& file, const std::vector<StepResult>& results) {
  std::cerr << ForTerminal(file) << ":\n";
  for (const StepResult& result : results) {
    std::cerr << "  step " << result.step << "  " << Describe(result) << "  \""
              << ForTerminal(result.sought) << "\"\n";
  }
}

bool ConvertFile(const std::string& file, const Options& options) {
  DocumentSession session;
  if (!session.Open(file)) return false;
  session.Messages().prefix = file + ": ";
  std::vector<StepResult> results;
  const bool converted = session.Run([&] {
    session.Control().Run([&] {
      results = ConvertUserCon(session.Editor(), session.World().pointer, session.World().messages,
                               [] {});
    });
  });
  if (!converted) return false;
  if (options.report) Report(file, results);
  return WriteResult(session.Editor().Bytes(), options.destination, file);
}

}  // namespace

void AddConvert(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* command = program.add_subcommand("convert", "Convert 1.3D user files to 1.4/1.5");
  command->add_option("FILE", options->files, "the user files")->required();
  AddDestination(*command, options->destination);
  command->add_flag("--report", options->report, "list on standard error what each step did");
  command->callback([options, &status] {
    if (options->files.size() > 1 && !options->destination.inPlace) {
      throw CLI::ValidationError("convert", "several files need --in-place");
    }
    for (const std::string& file : options->files) {
      if (!ConvertFile(file, *options)) status = kFailed;
    }
  });
}

}  // namespace tessel::cli
