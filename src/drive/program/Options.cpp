#include "drive/program/Options.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <iostream>

namespace tessel::drive {
namespace {

constexpr int kUsageError = 2;
constexpr int kLargestSize = 1000000;

#ifdef TESSEL_DRIVE_QT
const std::vector<std::string> kPlatforms = {"headless", "qt"};
#else
const std::vector<std::string> kPlatforms = {"headless"};
#endif

bool ReadNumber(std::string_view text, Twips& number) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  number = value;
  return error == std::errc() && end == text.data() + text.size() && value >= 0 &&
         value <= kLargestSize;
}

/// Reads "12000x9000"; returns what is wrong with it, or nothing.
std::string ReadSize(const std::string& text, Options& options) {
  const std::size_t cross = text.find('x');
  const bool good = cross != std::string::npos &&
                    ReadNumber(std::string_view(text).substr(0, cross), options.width) &&
                    ReadNumber(std::string_view(text).substr(cross + 1), options.height);
  return good ? std::string() : "must be WxH in twips, such as 12000x9000";
}

}  // namespace

bool ParseOptions(int argc, char** argv, Options& options, int& status) {
  CLI::App app(
      "Plays host and user for one ucTessel: JSON commands on standard input, one a line, "
      "JSON replies on standard output.",
      "tessel-drive");
  app.set_version_flag("--version", "tessel-drive " TESSEL_VERSION);
  std::string platform = "headless";
  std::string size;
  app.add_option("--platform", platform, "The platform to run on")
      ->check(CLI::IsMember(kPlatforms));
  app.add_option("--store", options.store, "The file of the settings store (default: in memory)");
  app.add_option("--host-dir", options.hostDirectory,
                 "The host program's directory, with the templates (default: the installed one)")
      ->check(CLI::ExistingDirectory);
  app.add_option("--size", size, "Size of the host in twips, WxH (default: 12000x9000)")
      ->check([&options](const std::string& text) { return ReadSize(text, options); });
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    status = app.exit(error, std::cout, std::cerr) == 0 ? 0 : kUsageError;
    return false;
  }
  options.qt = platform == "qt";
  return true;
}

}  // namespace tessel::drive
