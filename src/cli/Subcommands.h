// The subcommands of tessel: what each is asked for, and its work. Each function returns false when
// it refused or failed: the user has been told, and nothing was written. `file` is the CON file
// that a command works on.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/Output.h"
#include "services/LinearCongruentialRandom.h"

namespace tessel::cli {

struct ConvertArguments {
  std::vector<std::string> files;
  Destination destination;
  bool report = false;  ///< list on standard error what each step did
};
/// Of several files, those before and after one that fails are converted all the same.
bool Convert(const ConvertArguments& arguments);

struct RandomizeArguments {
  std::string file;
  std::string section;  ///< "All", "Player", "Weapon", "Enemy" or "Misc"
  std::string lower, upper;
  bool keepBelow = false, keepAbove = false;
  bool report = false;  ///< list old and new values on standard error
  std::uint32_t seed = LinearCongruentialRandom::kStart;
  Destination destination;
};
bool Randomize(const RandomizeArguments& arguments);

struct SettingsArguments {
  std::string file;
  std::string section;  ///< empty: all
  bool json = false;
};
bool ListSettings(const SettingsArguments& arguments);

struct SettingArguments {
  std::string file;
  std::string item;   ///< its name in the list, or its define
  std::string value;  ///< single-byte text
  Destination destination;
};
bool GetSetting(const SettingArguments& arguments);
bool SetSetting(const SettingArguments& arguments);

struct LevelsArguments {
  std::string file;
  bool json = false;
};
bool ListLevels(const LevelsArguments& arguments);

struct LevelArguments {
  std::string file;
  std::string level;                      ///< episode and level, such as "0 7"
  std::optional<std::string> map, title;  ///< single-byte text; with neither, both are shown
  Destination destination;
};
bool ShowOrChangeLevel(const LevelArguments& arguments);

struct ColourArguments {
  std::string file;
  std::string format;  ///< "ansi", "html", "json"; empty: as the terminal can
};
bool PrintInColours(const ColourArguments& arguments);

struct WordsArguments {
  std::string store;             ///< the settings file; empty: the user's own
  std::string word, parameters;  ///< single-byte text
  std::string file;              ///< to be read
  Destination destination;
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
