#include "cli/Options.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>
#include <vector>

#include "cli/Subcommands.h"
#include "cli/Usage.h"
#include "documents/Templates.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using Words = std::vector<std::string>;

/// What all subcommands are asked for; one of them runs.
struct Arguments {
  ConvertArguments convert;
  RandomizeArguments randomize;
  SettingsArguments settings;
  SettingArguments get, set;
  LevelsArguments levels;
  LevelArguments level;
  ColourArguments colour;
  WordsArguments words;
  NewArguments start;
  int status = kDone;
};

// --- Options that several subcommands share

/// FILE, the CON file that a command works on.
void AddFile(CLI::App& command, std::string& file) {
  command.add_option("FILE", file, "the CON file")->required();
}

/// Refuses an empty value.
void TakeFileName(CLI::Option& option) {
  const auto refuseEmpty = [](const std::string& name) {
    return name.empty() ? std::string("the name of the file is empty") : std::string();
  };
  option.type_name("FILE")->check(refuseEmpty);
}

/// Makes an option's value the single-byte text of what the user typed; refuses what a CON file
/// cannot hold.
void TakeDocumentText(CLI::Option& option) {
  const auto convert = [](std::string& text) -> std::string {
    const auto bytes = FromTerminal(text);
    if (!bytes) return "\"" + text + "\" has a character that a CON file cannot hold";
    text = *bytes;
    return {};
  };
  option.transform(CLI::Validator(convert, ""));
}

/// "-o FILE", and "--force".
CLI::Option* AddOutput(CLI::App& command, Destination& destination) {
  CLI::Option* option =
      command.add_option("-o,--output", destination.file, "write the result to this file");
  TakeFileName(*option);
  command.add_flag("--force", destination.force, "replace the file of -o if it is there");
  return option;
}

/// "-o FILE" or "--in-place".
void AddDestination(CLI::App& command, Destination& destination) {
  auto* output = AddOutput(command, destination);
  command.add_flag("--in-place", destination.inPlace, "write the result over the file itself")
      ->excludes(output);
}

/// The subcommand's work, once its arguments are read.
template <class T>
void Runs(CLI::App& command, bool (*work)(const T&), const T& of, int& status) {
  command.callback([work, &of, &status] {
    if (!work(of)) status = kFailed;
  });
}

// --- The subcommands

void AddConvert(CLI::App& program, ConvertArguments& convert, int& status) {
  CLI::App* command = program.add_subcommand("convert", "Convert 1.3D user files to 1.4/1.5");
  command->add_option("FILE", convert.files, "the user files")->required();
  AddDestination(*command, convert.destination);
  command->add_flag("--report", convert.report, "list on standard error what each step did");
  command->callback([&convert, &status] {
    if (convert.files.size() > 1 && !convert.destination.inPlace) {
      throw CLI::ValidationError("convert", "several files need --in-place");
    }
    if (!Convert(convert)) status = kFailed;
  });
}

void AddRandomize(CLI::App& program, RandomizeArguments& randomize, int& status) {
  CLI::App* command = program.add_subcommand("randomize", "Randomize the values of a user file");
  AddFile(*command, randomize.file);
  command->add_option("--section", randomize.section, "All, Player, Weapon, Enemy or Misc")
      ->required()
      ->transform(
          CLI::IsMember(Words{"All", "Player", "Weapon", "Enemy", "Misc"}, CLI::ignore_case));
  command->add_option("--lower", randomize.lower, "the smallest value drawn")->required();
  command->add_option("--upper", randomize.upper, "the largest value drawn")->required();
  command->add_flag("--keep-below", randomize.keepBelow, "leave smaller values as they are");
  command->add_flag("--keep-above", randomize.keepAbove, "leave larger values as they are");
  command->add_option("--seed", randomize.seed, "start the random numbers at another place")
      ->check(CLI::Range(0U, (1U << 24) - 1));
  command->add_flag("--report", randomize.report, "list old and new values on standard error");
  AddDestination(*command, randomize.destination);
  Runs(*command, Randomize, randomize, status);
}

void AddSettings(CLI::App& program, SettingsArguments& settings, int& status) {
  CLI::App* command = program.add_subcommand("settings", "List the tunable values of a user file");
  AddFile(*command, settings.file);
  command->add_option("--section", settings.section, "Player, Weapon, Enemy or Misc")
      ->transform(CLI::IsMember(Words{"Player", "Weapon", "Enemy", "Misc"}, CLI::ignore_case));
  command->add_flag("--json", settings.json, "print JSON");
  Runs(*command, ListSettings, settings, status);
}

CLI::App* AddItemCommand(CLI::App& program, const char* name, const char* what,
                         SettingArguments& setting) {
  CLI::App* command = program.add_subcommand(name, what);
  AddFile(*command, setting.file);
  command->add_option("ITEM", setting.item, "its name in the list, or its define")->required();
  return command;
}

void AddGet(CLI::App& program, SettingArguments& get, int& status) {
  Runs(*AddItemCommand(program, "get", "Print one value of a user file", get), GetSetting, get,
       status);
}

void AddSet(CLI::App& program, SettingArguments& set, int& status) {
  CLI::App* command = AddItemCommand(program, "set", "Change one value of a user file", set);
  TakeDocumentText(*command->add_option("VALUE", set.value, "the new value")->required());
  AddDestination(*command, set.destination);
  Runs(*command, SetSetting, set, status);
}

void AddLevels(CLI::App& program, LevelsArguments& levels, int& status) {
  CLI::App* command =
      program.add_subcommand("levels", "List the levels with their maps and titles");
  AddFile(*command, levels.file);
  command->add_flag("--json", levels.json, "print JSON");
  Runs(*command, ListLevels, levels, status);
}

void AddLevel(CLI::App& program, LevelArguments& level, int& status) {
  CLI::App* command = program.add_subcommand("level", "Show or change a level's map and title");
  AddFile(*command, level.file);
  command->add_option("LEVEL", level.level, "episode and level, such as \"0 7\"")->required();
  CLI::Option* map = command->add_option("--map", level.map, "the new map file");
  TakeDocumentText(*map);
  TakeFileName(*map);
  TakeDocumentText(*command->add_option("--title", level.title, "the new title"));
  AddDestination(*command, level.destination);
  command->callback([&level, &status] {
    const bool changes = level.map || level.title;
    if (!changes && (level.destination.inPlace || !level.destination.file.empty())) {
      throw CLI::ValidationError("level", "there is nothing to write without --map or --title");
    }
    if (!ShowOrChangeLevel(level)) status = kFailed;
  });
}

void AddColour(CLI::App& program, ColourArguments& colour, int& status) {
  CLI::App* command = program.add_subcommand("colour", "Print a file in colours");
  AddFile(*command, colour.file);
  command->add_option("--format", colour.format, "ansi, html or json (the coloured runs)")
      ->check(CLI::IsMember(Words{"ansi", "html", "json"}));
  Runs(*command, PrintInColours, colour, status);
}

void AddWords(CLI::App& program, WordsArguments& arguments, int& status) {
  CLI::App* words = program.add_subcommand("words", "Keep the list of script words");
  words->require_subcommand(1);
  words->add_option("--store", arguments.store, "the settings file, instead of the user's own")
      ->type_name("FILE");

  const auto add = [&](const char* name, const char* what, bool (*work)(const WordsArguments&)) {
    CLI::App* command = words->add_subcommand(name, what);
    Runs(*command, work, arguments, status);
    return command;
  };
  const auto addWord = [&](CLI::App* command) {
    TakeDocumentText(*command->add_option("WORD", arguments.word, "the word")->required());
  };
  add("list", "Print the words", ListWords);
  addWord(add("get", "Print a word's parameters", GetWord));
  CLI::App* set = add("set", "Add a word or change its parameters", SetWord);
  addWord(set);
  TakeDocumentText(
      *set->add_option("PARAMETERS", arguments.parameters, "such as \"[weapon] [amount]\"")
           ->required());
  addWord(add("remove", "Take a word off the list", RemoveWord));
  add("import", "Add the words of a file: one a line, word, tab, parameters", ImportWords)
      ->add_option("FILE", arguments.file, "the file")
      ->required();
  AddOutput(*add("export", "Print the words as import reads them", ExportWords),
            arguments.destination);
}

void AddNew(CLI::App& program, NewArguments& start, int& status) {
  Words codes;
  codes.reserve(kTemplates.size());
  for (const Template& entry : kTemplates) codes.emplace_back(entry.code);
  CLI::App* command = program.add_subcommand("new", "Start a file from a template");
  command->add_option("CODE", start.code, "13DU, 15AU (user), 13DD, 15AD (defs), 13DG, 15AG (game)")
      ->required()
      ->check(CLI::IsMember(codes));
  AddOutput(*command, start.destination);
  Runs(*command, StartNew, start, status);
}

void AddSubcommands(CLI::App& program, Arguments& arguments) {
  int& status = arguments.status;
  program.require_subcommand(1);
  program.footer("\"tessel SUBCOMMAND --help\" tells more.");
  AddConvert(program, arguments.convert, status);
  AddRandomize(program, arguments.randomize, status);
  AddSettings(program, arguments.settings, status);
  AddGet(program, arguments.get, status);
  AddSet(program, arguments.set, status);
  AddLevels(program, arguments.levels, status);
  AddLevel(program, arguments.level, status);
  AddColour(program, arguments.colour, status);
  AddWords(program, arguments.words, status);
  AddNew(program, arguments.start, status);
}

/// Gives the program and each of its subcommands "--version", and subcommands of subcommands the
/// options of their parents.
void AddVersion(CLI::App& app, const std::string& version) {
  app.set_version_flag("--version", version);
  for (CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    command->fallthrough(app.get_parent() != nullptr);
    AddVersion(*command, version);
  }
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

std::string MisuseMessage(const CLI::App* program, const CLI::Error& error) {
  Misuse misuse;
  misuse.command = ChosenCommand(*program);
  misuse.reason = error.what();
  misuse.miscounted = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr ||
                      dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
  if (const Words left = program->remaining(true); !left.empty()) misuse.unexpected = left.front();
  misuse.wantsCommand =
      !DeepestChosen(*program).get_subcommands([](const CLI::App*) { return true; }).empty();
  return UsageMessage(misuse);
}

}  // namespace

int RunSubcommand(int argc, char** argv) {
  Arguments arguments;
  CLI::App program("Works on CON files: converts, randomizes, reads and changes settings.",
                   "tessel");
  AddSubcommands(program, arguments);
  AddVersion(program, "tessel " TESSEL_VERSION);
  program.failure_message(MisuseMessage);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? kDone : kUsage;
  }
  return arguments.status;
}

}  // namespace tessel::cli
