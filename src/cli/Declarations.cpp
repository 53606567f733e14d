#include "cli/Declarations.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <array>
#include <utility>

#include "check/rules/Rules.h"
#include "cli/SharedOptions.h"
#include "cli/look/LevelName.h"
#include "cli/report/Suggestion.h"
#include "documents/Templates.h"

namespace tessel::cli {
namespace {

using Words = std::vector<std::string>;

const Words kSections = {"Player", "Weapon", "Enemy", "Misc"};

struct Synopsis {
  std::string_view command, words;
};
constexpr std::array<Synopsis, 3> kSynopses = {
    {{"get", "FILE... ITEM"},
     {"set", "FILE... ITEM=VALUE... | FILE... ITEM VALUE"},
     {"level", "FILE... LEVEL"}}};

// --- Words whose place says what they are

/// The last of the words; the others stay.
std::string TakeLast(Words& words, const char* name) {
  if (words.size() < 2) throw CLI::RequiredError(name);
  std::string last = std::move(words.back());
  words.pop_back();
  return last;
}

/// ITEM=VALUE. No item begins like a path.
bool IsAssignment(const std::string& word) {
  return word.find('=') != word.npos && !word.starts_with('.') && !word.starts_with('/');
}

Assignment AssignmentOf(const std::string& word) {
  const std::size_t sign = word.find('=');
  return {word.substr(0, sign), DocumentTextOf(word.substr(sign + 1), "VALUE")};
}

/// Files, then ITEM=VALUE once or often; or files, an item and its value.
void TakeAssignments(Words words, SetArguments& set) {
  const auto first =
      std::find_if(words.begin() + (words.empty() ? 0 : 1), words.end(), IsAssignment);
  if (first == words.end()) {
    std::string value = TakeLast(words, words.empty() ? "FILE" : "ITEM");
    std::string item = TakeLast(words, "VALUE");
    set.values = {{std::move(item), DocumentTextOf(value, "VALUE")}};
  } else {
    for (auto word = first; word != words.end(); ++word) {
      if (!IsAssignment(*word)) {
        throw CLI::ValidationError(
            "set", "\"" + *word + "\" has no \"=\": files come first, then ITEM=VALUE");
      }
      set.values.push_back(AssignmentOf(*word));
    }
    words.erase(first, words.end());
  }
  set.files = std::move(words);
}

void CheckLevelName(const LevelArguments& level) {
  if (ParseLevelName(level.level)) return;
  const std::string apart = level.files.back() + "/" + level.level;
  const bool isApart = level.files.size() > 1 && ParseLevelName(apart);
  throw CLI::ValidationError("LEVEL", "\"" + level.level +
                                          "\" is no level: write \"0 7\", 0/7 or E1L8" +
                                          (isApart ? ". Did you mean \"" + apart + "\"?" : ""));
}

// --- The subcommands

void AddConvert(CLI::App& program, Arguments& all) {
  ConvertArguments& convert = all.convert;
  CLI::App* command = program.add_subcommand("convert", "Convert 1.3D user files to 1.4/1.5");
  AddFiles(*command, convert.files);
  AddEdit(*command, convert);
  const auto keep = [&convert](const std::string& kind) { convert.keepLineEnds = kind == "keep"; };
  TakeOneOf(*command->add_option_function<std::string>(
                "--line-ends", keep,
                "line ends of what is inserted: CR LF (control) or the file's own (keep)"),
            {"control", "keep"});
  command->callback([command, &convert, &all] {
    CheckEdit(*command, convert);
    all.good = Convert(convert);
  });
}

SectionBounds BoundsOf(const std::string& text) {
  const std::size_t sign = text.find('=');
  const std::size_t dots = text.find("..", sign == text.npos ? 0 : sign);
  if (sign == text.npos || dots == text.npos) {
    throw CLI::ValidationError("--bounds", "\"" + text + "\" is not written SECTION=LOWER..UPPER");
  }
  return {text.substr(0, sign), text.substr(sign + 1, dots - sign - 1), text.substr(dots + 2)};
}

void AddRandomizeOptions(CLI::App& command, RandomizeArguments& randomize, RandomizeWords& words) {
  Words sections = kSections;
  sections.insert(sections.begin(), "All");
  CLI::Option* section =
      command.add_option("--section", words.one.section, "All, Player, Weapon, Enemy or Misc");
  TakeOneOf(*section, sections);
  CLI::Option* lower = command.add_option("--lower", words.one.lower, "the smallest value drawn");
  CLI::Option* upper = command.add_option("--upper", words.one.upper, "the largest value drawn");
  command
      .add_option("--bounds", words.bounds,
                  "SECTION=LOWER..UPPER, for one section; may be repeated")
      ->allow_extra_args(false)
      ->excludes(section)
      ->excludes(lower)
      ->excludes(upper);
  command
      .add_option("--percent", randomize.percent,
                  "draw values at most this many per cent from the present one")
      ->type_name("NUMBER")
      ->check(CLI::Range(1, 1000))
      ->excludes(lower)
      ->excludes(upper);
  command.add_flag("--keep-below", randomize.keepBelow, "leave smaller values as they are");
  command.add_flag("--keep-above", randomize.keepAbove, "leave larger values as they are");
  command
      .add_option("--seed", randomize.seed,
                  "start the random numbers here; the same seed gives the same file")
      ->check(CLI::Range(0U, (1U << 24) - 1));
}

void TakeBounds(const CLI::App& command, const RandomizeWords& words,
                RandomizeArguments& randomize) {
  for (const std::string& text : words.bounds) {
    SectionBounds bounds = BoundsOf(text);
    const bool known = std::ranges::find(kSections, bounds.section) != kSections.end();
    if (!known) {
      throw CLI::ValidationError(
          "--bounds", "\"" + bounds.section + "\" is none of Player, Weapon, Enemy, Misc");
    }
    randomize.bounds.push_back(std::move(bounds));
  }
  if (!randomize.bounds.empty()) {
    if (!randomize.percent) return;
    throw CLI::ValidationError("--bounds", "it excludes --percent");
  }
  for (const char* needed : {"--section", "--lower", "--upper"}) {
    const bool bound = std::string_view(needed) != "--section";
    if (command.count(needed) == 0 && !(bound && randomize.percent)) {
      throw CLI::RequiredError(needed);
    }
  }
  randomize.bounds = {words.one};
}

void AddRandomize(CLI::App& program, Arguments& all) {
  RandomizeArguments& randomize = all.randomize;
  RandomizeWords& words = all.randomizeWords;
  CLI::App* command = program.add_subcommand("randomize", "Randomize the values of user files");
  AddFiles(*command, randomize.files);
  AddRandomizeOptions(*command, randomize, words);
  AddEdit(*command, randomize);
  command->callback([command, &randomize, &words, &all] {
    TakeBounds(*command, words, randomize);
    CheckEdit(*command, randomize);
    all.good = Randomize(randomize);
  });
}

void AddSettings(CLI::App& program, Arguments& all) {
  SettingsArguments& settings = all.settings;
  CLI::App* command = program.add_subcommand("settings", "List the tunable values of user files");
  AddFiles(*command, settings.files);
  TakeOneOf(*command->add_option("--section", settings.section, "Player, Weapon, Enemy or Misc"),
            kSections);
  AddFormat(*command, settings.format);
  command->callback([command, &settings, &all] {
    CheckFiles(*command, settings.files);
    all.good = ListSettings(settings);
  });
}

void AddGet(CLI::App& program, Arguments& all) {
  GetArguments& get = all.get;
  CLI::App* command = program.add_subcommand("get", "Print one value of CON files");
  command
      ->add_option("FILE", get.files,
                   "the CON files, then the item: its name in the list, or any define")
      ->required();
  AddLine(*command, get.line);
  AddFormat(*command, get.format);
  command->callback([command, &get, &all] {
    get.item = TakeLast(get.files, "ITEM");
    CheckFiles(*command, get.files);
    all.good = GetSetting(get);
  });
}

void AddSet(CLI::App& program, Arguments& all) {
  SetArguments& set = all.set;
  Words& words = all.setWords;
  CLI::App* command = program.add_subcommand("set", "Change values of CON files");
  command->add_option("FILE", words, "the CON files, then the items with their new values")
      ->required();
  AddLine(*command, set.line);
  AddEdit(*command, set);
  command->callback([command, &set, &words, &all] {
    TakeAssignments(words, set);
    CheckEdit(*command, set);
    if (set.line && set.values.size() > 1) {
      throw CLI::ValidationError("--line", "it goes with one ITEM=VALUE");
    }
    all.good = SetSettings(set);
  });
}

void AddLevels(CLI::App& program, Arguments& all) {
  LookArguments& levels = all.levels;
  CLI::App* command =
      program.add_subcommand("levels", "List the levels with their maps and titles");
  AddFiles(*command, levels.files);
  AddFormat(*command, levels.format);
  command->callback([command, &levels, &all] {
    CheckFiles(*command, levels.files);
    all.good = ListLevels(levels);
  });
}

void AddLevel(CLI::App& program, Arguments& all) {
  LevelArguments& level = all.level;
  CLI::App* command = program.add_subcommand("level", "Show or change a level's map and title");
  command
      ->add_option("FILE", level.files,
                   "the CON files, then the level: \"0 7\" or 0/7, counted from 0, or E1L8")
      ->required();
  CLI::Option* map = command->add_option("--map", level.map, "the new map file");
  TakeDocumentText(*map);
  TakeFileName(*map);
  TakeDocumentText(*command->add_option("--title", level.title, "the new title"));
  AddLine(*command, level.line);
  AddEdit(*command, level);
  command->callback([command, &level, &all] {
    level.level = TakeLast(level.files, "LEVEL");
    CheckLevelName(level);
    if (level.map || level.title) {
      CheckEdit(*command, level);
      all.good = ChangeLevel(level);
      return;
    }
    if (level.destination.inPlace || level.destination.dryRun || !level.destination.file.empty()) {
      throw CLI::ValidationError("level", "there is nothing to write without --map or --title");
    }
    CheckFiles(*command, level.files);
    all.good = ShowLevel(level);
  });
}

void AddColour(CLI::App& program, Arguments& all) {
  ColourArguments& colour = all.colour;
  CLI::App* command = program.add_subcommand("colour", "Print a file in colours");
  CLI::Option* file =
      command->add_option("FILE", colour.file, "the CON file; \"-\" is standard input");
  file->required();
  TakeFileName(*file);
  TakeOneOf(
      *command->add_option("--format", colour.format, "ansi, html or json (the coloured runs)"),
      {"ansi", "html", "json"});
  command->callback([&colour, &all] { all.good = PrintInColours(colour); });
}

const check::Rule* RuleOf(const std::string& name, const char* option) {
  if (const check::Rule* rule = check::RuleNamed(name)) return rule;
  Words names;
  for (const check::Rule* rule : check::AllRules()) names.emplace_back(rule->id);
  const std::string guess = DidYouMean(name, names);
  throw CLI::ValidationError(
      option, "there is no rule \"" + name + "\"" + (guess.empty() ? "" : ". " + guess));
}

std::vector<const check::Rule*> RulesOf(const Words& names, const char* option) {
  std::vector<const check::Rule*> rules;
  rules.reserve(names.size());
  for (const std::string& name : names) rules.push_back(RuleOf(name, option));
  return rules;
}

void AddCheckOptions(CLI::App& command, CheckArguments& check, CheckWords& words) {
  command.add_option("FILE", check.files, "the CON files of one mod; \"-\" is standard input");
  command.add_option("--only", words.only, "apply this rule alone; may be repeated")
      ->type_name("RULE")
      ->allow_extra_args(false);
  command.add_option("--no", words.off, "do not apply this rule; may be repeated")
      ->type_name("RULE")
      ->allow_extra_args(false);
  command.add_flag("--warnings-as-errors", check.warningsAreErrors,
                   "exit with status 1 if there are warnings, too");
  command.add_option("--store", check.store, "the settings file with the script words")
      ->type_name("FILE");
  command.add_flag("--list-rules", words.list, "list the rules");
  command.add_option("--explain", words.explain, "explain a rule")->type_name("RULE");
  AddFormat(command, check.format);
  command.add_flag("--sarif", check.sarif, "print a SARIF 2.1.0 log")
      ->excludes("--json")
      ->excludes("--tsv");
}

void AddCheck(CLI::App& program, Arguments& all) {
  CheckArguments& check = all.check;
  CheckWords& words = all.checkWords;
  CLI::App* command = program.add_subcommand("check", "Find faults in the CON files of a mod");
  AddCheckOptions(*command, check, words);
  command->callback([command, &check, &words, &all] {
    if (words.list) {
      all.good = ListRules();
      return;
    }
    if (!words.explain.empty()) {
      all.good = ExplainRule(*RuleOf(words.explain, "--explain"));
      return;
    }
    if (check.files.empty()) throw CLI::RequiredError("FILE");
    CheckFiles(*command, check.files);
    check.rules = {.rules = RulesOf(words.only, "--only"), .off = RulesOf(words.off, "--no")};
    all.good = CheckFiles(check);
  });
}

void AddServer(CLI::App& program, Arguments& all) {
  ServerArguments& server = all.server;
  CLI::App* command = program.add_subcommand("lsp", "Serve other editors by the language protocol");
  command->add_flag_callback(
      "--stdio", [] {}, "talk over standard input and output, as it does anyway");
  command->add_option("--store", server.store, "the settings file with the script words")
      ->type_name("FILE");
  command->callback([&server, &all] { all.good = ServeLanguage(server); });
}

struct DiffFlag {
  const char* flag;
  DiffForm form;
  const char* what;
};
constexpr std::array<DiffFlag, 4> kDiffFlags = {
    {{"--markdown", DiffForm::kMarkdown, "print a Markdown table"},
     {"--toml", DiffForm::kToml, "print the values of the second file as apply reads them"},
     {"--json", DiffForm::kJson, "print the report as JSON"},
     {"--tsv", DiffForm::kTsv, "print the report as a table with tabs"}}};

void AddDiff(CLI::App& program, Arguments& all) {
  DiffArguments& diff = all.diff;
  CLI::App* command = program.add_subcommand("diff", "Compare the values of two CON files");
  TakeFileName(*command->add_option("BEFORE", diff.before, "the first file")->required());
  TakeFileName(*command->add_option("AFTER", diff.after, "the second file")->required());
  CLI::Option_group* forms = command->add_option_group("Form");
  for (const DiffFlag& each : kDiffFlags) {
    forms->add_flag_callback(
        each.flag, [&diff, form = each.form] { diff.form = form; }, each.what);
  }
  forms->require_option(0, 1);
  command->callback([command, &diff, &all] {
    CheckFiles(*command, {diff.before, diff.after});
    all.good = DiffValues(diff);
  });
}

void AddApply(CLI::App& program, Arguments& all) {
  ApplyArguments& apply = all.apply;
  CLI::App* command = program.add_subcommand("apply", "Write a page of values into CON files");
  CLI::Option* page = command->add_option("VALUES", apply.page, "the page: TOML, or a JSON report");
  page->required();
  TakeFileName(*page);
  AddFiles(*command, apply.files);
  command->add_flag("--skip-missing", apply.skipMissing, "skip values that a file does not have");
  AddEdit(*command, apply);
  command->callback([command, &apply, &all] {
    CheckEdit(*command, apply);
    all.good = ApplyValues(apply);
  });
}

void AddWords(CLI::App& program, Arguments& all) {
  WordsArguments& arguments = all.words;
  CLI::App* words = program.add_subcommand("words", "Manage the list of script words");
  words->require_subcommand(1);
  words->add_option("--store", arguments.store, "the settings file, instead of the user's own")
      ->type_name("FILE");

  const auto add = [&](const char* name, const char* what, bool (*work)(const WordsArguments&)) {
    CLI::App* command = words->add_subcommand(name, what);
    command->callback([work, &arguments, &all] { all.good = work(arguments); });
    return command;
  };
  const auto addWord = [&](CLI::App* command) {
    TakeDocumentText(*command->add_option("WORD", arguments.word, "the word")->required());
  };
  AddFormat(*add("list", "Print the words", ListWords), arguments.format);
  CLI::App* get = add("get", "Print a word's parameters", GetWord);
  addWord(get);
  AddFormat(*get, arguments.format);
  CLI::App* set = add("set", "Add a word or change its parameters", SetWord);
  addWord(set);
  TakeDocumentText(
      *set->add_option("PARAMETERS", arguments.parameters, "such as \"[weapon] [amount]\"")
           ->required());
  addWord(add("remove", "Remove a word from the list", RemoveWord));
  CLI::Option* file =
      add("import", "Add the words of a file: one a line, word, tab, parameters", ImportWords)
          ->add_option("FILE", arguments.file, "the file; \"-\" is standard input");
  file->required();
  TakeFileName(*file);
  AddOutput(*add("export", "Print the words as import reads them", ExportWords),
            arguments.destination);
}

void AddNew(CLI::App& program, Arguments& all) {
  NewArguments& start = all.start;
  Words codes;
  codes.reserve(kTemplates.size());
  for (const Template& entry : kTemplates) codes.emplace_back(entry.code);
  CLI::App* command = program.add_subcommand("new", "Start a file from a template");
  CLI::Option* code = command->add_option(
      "CODE", start.code, "13DU, 15AU (user), 13DD, 15AD (defs), 13DG, 15AG (game)");
  code->required();
  TakeOneOf(*code, codes);
  AddOutput(*command, start.destination);
  command->callback([&start, &all] { all.good = StartNew(start); });
}

}  // namespace

void DeclareSubcommands(CLI::App& program, Arguments& arguments) {
  AddConvert(program, arguments);
  AddRandomize(program, arguments);
  AddSettings(program, arguments);
  AddGet(program, arguments);
  AddSet(program, arguments);
  AddLevels(program, arguments);
  AddLevel(program, arguments);
  AddColour(program, arguments);
  AddCheck(program, arguments);
  AddServer(program, arguments);
  AddDiff(program, arguments);
  AddApply(program, arguments);
  AddWords(program, arguments);
  AddNew(program, arguments);
  program.add_subcommand("help", "Print help on a subcommand")
      ->add_option("COMMAND", arguments.helpOn, "the subcommand, such as: words set");
}

std::string SynopsisOf(const std::string& command) {
  const auto* const found = std::ranges::find(kSynopses, command, &Synopsis::command);
  return found == kSynopses.end() ? std::string() : std::string(found->words);
}

}  // namespace tessel::cli
