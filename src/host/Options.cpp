#include "host/Options.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <regex>
#include <system_error>

#include "posix/HostDirectory.h"
#include "posix/SqliteSettingsStore.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

constexpr int kBadArguments = 2;

std::string Absolute(const std::string& path) {
  std::error_code ignored;
  return fs::absolute(path, ignored).lexically_normal().string();
}

std::string BadSize(const std::string& text) {
  static const std::regex kSize("[1-9][0-9]{1,3}x[1-9][0-9]{1,3}");
  return std::regex_match(text, kSize) ? "" : "a size is WIDTHxHEIGHT in pixels, such as 1000x700";
}

QSize SizeOf(const std::string& text) {
  const auto cross = text.find('x');
  return {std::stoi(text.substr(0, cross)), std::stoi(text.substr(cross + 1))};
}

/// Why a file named on the command line cannot be opened; empty when it can.
std::string BadFile(const std::string& path) {
  std::error_code error;
  if (fs::is_directory(path, error)) return path + " is a directory";
  return {};
}

}  // namespace

std::optional<Options> ParseOptions(int argc, char** argv, int& exitStatus) {
  CLI::App app("Zanth Manager: an editor for CON files", "zanth-manager");
  Options options;
  options.hostDirectory = DefaultHostDirectory();
  std::string size;
  bool dark = false;
  bool light = false;
  bool automation = false;
  bool noAutomation = false;
  app.add_option("FILE", options.files, "files to open")->check(BadFile);
  app.add_option("--store", options.store, "file of the settings store")->type_name("FILE");
  app.add_option("--host-dir", options.hostDirectory, "directory of the template files")
      ->type_name("DIR")
      ->check(CLI::ExistingDirectory);
  CLI::Option* darkFlag = app.add_flag("--dark", dark, "dark colours, whatever the desktop has");
  app.add_flag("--light", light, "light colours")->excludes(darkFlag);
  CLI::Option* screenshot = app.add_option("--screenshot", options.screenshot,
                                           "leave a picture of the window in this file and end")
                                ->type_name("FILE");
  CLI::Option* automationFlag =
      app.add_flag("--automation", automation,
                   "let other programs use the editor, and say so when that cannot be")
          ->excludes(screenshot);
  app.add_flag("--no-automation", noAutomation, "let no other program use the editor")
      ->excludes(automationFlag);
  app.add_option("--size", size, "size of the window in pixels")->type_name("WxH")->check(BadSize);
  app.set_version_flag("--version", "zanth-manager " TESSEL_VERSION);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    exitStatus = app.exit(error) == 0 ? 0 : kBadArguments;
    return std::nullopt;
  }
  if (dark) options.scheme = ColourScheme::kDark;
  if (light) options.scheme = ColourScheme::kLight;
  if (automation) options.automation = AutomationWish::kWanted;
  if (noAutomation) options.automation = AutomationWish::kOff;
  if (!size.empty()) options.size = SizeOf(size);
  if (options.store.empty()) options.store = DefaultSettingsPath();
  options.store = Absolute(options.store);
  options.hostDirectory = Absolute(options.hostDirectory);
  for (std::string& file : options.files) file = Absolute(file);
  return options;
}

}  // namespace tessel
