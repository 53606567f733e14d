#include <iostream>
#include <vector>

#include "cli/DocumentSession.h"
#include "cli/Subcommands.h"
#include "converter/Converter.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

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

bool ConvertFile(const std::string& file, const ConvertArguments& arguments) {
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
  if (arguments.report) Report(file, results);
  return WriteResult(session.Editor().Bytes(), arguments.destination, file);
}

}  // namespace

bool Convert(const ConvertArguments& arguments) {
  bool good = true;
  for (const std::string& file : arguments.files) {
    if (!ConvertFile(file, arguments)) good = false;
  }
  return good;
}

}  // namespace tessel::cli
