// The subcommands of tessel: what each is asked for, and its work. Each function returns false when
// it refused or failed, at least for one of its files: the user has been told, and of these nothing
// was written. What it cannot work with at all is a RuntimeError.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "check/Check.h"
#include "cli/files/Batch.h"
#include "cli/files/Output.h"
#include "services/LinearCongruentialRandom.h"

namespace tessel::cli {

struct ConvertArguments : EditArguments {
  bool keepLineEnds = false;  ///< those of the file, instead of CR LF in what is inserted
};
bool Convert(const ConvertArguments& arguments);

/// Which values of a section are drawn between which bounds.
struct SectionBounds {
  std::string section;  ///< "All", "Player", "Weapon", "Enemy" or "Misc"
  std::string lower, upper;
};
struct RandomizeArguments : EditArguments {
  std::vector<SectionBounds> bounds;
  bool keepBelow = false, keepAbove = false;
  std::optional<int> percent;  ///< of the present values, in the first of `bounds`' section
  std::uint32_t seed = LinearCongruentialRandom::kStart;
};
bool Randomize(const RandomizeArguments& arguments);

struct SettingsArguments : LookArguments {
  std::string section;  ///< empty: all
};
bool ListSettings(const SettingsArguments& arguments);

struct GetArguments : LookArguments {
  std::string item;  ///< its name in the list, or any define's
  std::optional<std::int64_t> line;
};
bool GetSetting(const GetArguments& arguments);

/// A value for an item, in single-byte text.
struct Assignment {
  std::string item, value;
};
struct SetArguments : EditArguments {
  std::vector<Assignment> values;
  std::optional<std::int64_t> line;
};
bool SetSettings(const SetArguments& arguments);

bool ListLevels(const LookArguments& arguments);

struct LevelArguments : EditArguments {
  std::string level;  ///< as ParseLevelName reads it
  std::optional<std::int64_t> line;
  std::optional<std::string> map, title;  ///< single-byte text
};
bool ShowLevel(const LevelArguments& arguments);
bool ChangeLevel(const LevelArguments& arguments);

struct ColourArguments {
  std::string file;
  std::string format;  ///< "ansi", "html", "json"; empty: as the terminal can
};
bool PrintInColours(const ColourArguments& arguments);

struct CheckArguments : LookArguments {
  check::Options rules;
  bool warningsAreErrors = false;
  bool sarif = false;  ///< in place of the format
  std::string store;   ///< the settings file with the word list; empty: the user's own
};
/// False also where there are errors.
bool CheckFiles(const CheckArguments& arguments);
bool ExplainRule(const check::Rule& rule);
bool ListRules();

struct ServerArguments {
  std::string store;  ///< the settings file with the word list; empty: the user's own
};
/// False where the client has gone before it asked to shut down.
bool ServeLanguage(const ServerArguments& arguments);

enum class DiffForm : std::uint8_t { kText, kMarkdown, kToml, kJson, kTsv };
struct DiffArguments {
  std::string before, after;  ///< files
  DiffForm form = DiffForm::kText;
};
bool DiffValues(const DiffArguments& arguments);

struct ApplyArguments : EditArguments {
  std::string page;          ///< a file of values
  bool skipMissing = false;  ///< what a file does not have is passed over
};
bool ApplyValues(const ApplyArguments& arguments);

struct WordsArguments {
  std::string store;             ///< the settings file; empty: the user's own
  std::string word, parameters;  ///< single-byte text
  std::string file;              ///< to be read
  Destination destination;
  Format format = Format::kText;
};
bool ListWords(const WordsArguments& arguments);
bool GetWord(const WordsArguments& arguments);
bool SetWord(const WordsArguments& arguments);
bool RemoveWord(const WordsArguments& arguments);
bool ImportWords(const WordsArguments& arguments);
bool ExportWords(const WordsArguments& arguments);

struct NewArguments {
  std::string code;  ///< of the template, such as "15AU"
  Destination destination;
};
bool StartNew(const NewArguments& arguments);

}  // namespace tessel::cli
