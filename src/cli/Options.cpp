#include "cli/Options.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/Declarations.h"
#include "cli/Usage.h"
#include "cli/report/Suggestion.h"

namespace tessel::cli {
namespace {

using Words = std::vector<std::string>;

std::vector<const CLI::App*> CommandsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

Words NamesOf(const std::vector<const CLI::App*>& commands) {
  Words names;
  names.reserve(commands.size());
  for (const CLI::App* command : commands) names.push_back(command->get_name());
  return names;
}

/// The usual help, with the synopsis of a command where the parser does not know it.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_usage(const CLI::App* app, std::string name) const override {
    const std::string synopsis = app->get_parent() == nullptr || app->get_parent()->get_parent()
                                     ? std::string()
                                     : SynopsisOf(app->get_name());
    if (synopsis.empty()) return CLI::Formatter::make_usage(app, std::move(name));
    return "Usage: " + name + " [OPTIONS] " + synopsis + "\n";
  }
};

/// Gives the program and each of its subcommands "--version", and subcommands of subcommands the
/// options of their parents.
void AddVersion(CLI::App& app, const std::string& version) {
  app.set_version_flag("--version", version);
  for (CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    command->fallthrough(app.get_parent() != nullptr);
    AddVersion(*command, version);
  }
}

// --- Help

/// The help on a command that is named word by word. A ParseError when there is none of that name.
std::string HelpOn(const CLI::App& program, const Words& words) {
  const CLI::App* app = &program;
  std::string name = program.get_name();
  for (const std::string& word : words) {
    const std::vector<const CLI::App*> commands = CommandsOf(*app);
    const auto found =
        std::ranges::find(commands, word, [](const CLI::App* each) { return each->get_name(); });
    if (found == commands.end()) {
      const std::string guess = DidYouMean(word, NamesOf(commands));
      throw CLI::ValidationError(
          "help", "there is no subcommand \"" + word + "\"" + (guess.empty() ? "" : ". " + guess));
    }
    app = *found;
    name += " " + word;
  }
  // App::help would go on to the command that was chosen: this one.
  return app->get_formatter()->make_help(app, name, CLI::AppFormatMode::Normal);
}

// --- Misuse

/// "tessel words set": the subcommands that the arguments chose.
std::string ChosenCommand(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return app.get_name() + (chosen.empty() ? "" : " " + ChosenCommand(*chosen.front()));
}

const CLI::App& DeepestChosen(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty() ? app : DeepestChosen(*chosen.front());
}

Words OptionsOf(const CLI::App& app) {
  Words names;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::string MisuseMessage(const CLI::App* program, const CLI::Error& error) {
  const CLI::App& chosen = DeepestChosen(*program);
  Misuse misuse;
  misuse.command = ChosenCommand(*program);
  misuse.reason = error.what();
  misuse.miscounted = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr ||
                      dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
  if (const Words left = program->remaining(true); !left.empty()) misuse.unexpected = left.front();
  misuse.commands = NamesOf(CommandsOf(chosen));
  misuse.options = OptionsOf(chosen);
  return UsageMessage(misuse);
}

}  // namespace

int RunSubcommand(int argc, char** argv) {
  Arguments arguments;
  CLI::App program("Convert, randomize, read and change CON files.", "tessel");
  program.formatter(std::make_shared<HelpFormatter>());
  program.require_subcommand(1);
  program.footer("Run 'tessel help SUBCOMMAND' for details.");
  DeclareSubcommands(program, arguments);
  AddVersion(program, "tessel " TESSEL_VERSION);
  CLI::App* help = program.get_subcommand("help");
  help->callback([&] { std::cout << HelpOn(program, arguments.helpOn); });
  program.failure_message(MisuseMessage);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? kDone : kUsage;
  }
  return arguments.good ? kDone : kFailed;
}

}  // namespace tessel::cli
