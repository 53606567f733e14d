#include "cli/Usage.h"

#include "cli/SafeText.h"

namespace tessel::cli {
namespace {

/// "tessel words set": the subcommands that the arguments chose.
std::string ChosenCommand(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return app.get_name() + (chosen.empty() ? "" : " " + ChosenCommand(*chosen.front()));
}

const CLI::App& DeepestChosen(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty() ? app : DeepestChosen(*chosen.front());
}

std::string Reason(const CLI::App& program, const CLI::Error& error) {
  const std::vector<std::string> unexpected = program.remaining(true);
  const bool lacksOne = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  const bool hasOneTooMany = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
  if (unexpected.empty() || !(lacksOne || hasOneTooMany)) return error.what();

  const std::string& word = unexpected.front();
  if (word.starts_with('-')) {
    return "there is no option \"" + word + "\" here; a file of that name is written \"./" + word +
           "\"";
  }
  const bool wantsCommand =
      !DeepestChosen(program).get_subcommands([](const CLI::App*) { return true; }).empty();
  return wantsCommand ? "there is no subcommand \"" + word + "\""
                      : "\"" + word + "\" is one argument too many";
}

}  // namespace

void AddVersion(CLI::App& app, const std::string& version) {
  app.set_version_flag("--version", version);
  for (CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    command->fallthrough(app.get_parent() != nullptr);
    AddVersion(*command, version);
  }
}

std::string UsageMessage(const CLI::App& program, const CLI::Error& error) {
  return "tessel: " + ForTerminal(Reason(program, error)) + "\n\"" + ChosenCommand(program) +
         " --help\" tells more.\n";
}

}  // namespace tessel::cli
