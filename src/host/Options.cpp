#include "host/Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>
#include <utility>

#include "host/process/StandardError.h"
#include "posix/HostDirectory.h"
#include "posix/SqliteSettingsStore.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

constexpr int kBadArguments = 2;

// File names are bytes: as Latin-1 each of them stays what it is on its way through Qt.
QString ToQt(const char* argument) { return QString::fromLatin1(argument); }
std::string Bytes(const QString& argument) { return argument.toLatin1().toStdString(); }

/// ".." stays: behind a link it leads elsewhere than the text of the path says.
std::string Absolute(const std::string& path) {
  std::error_code ignored;
  fs::path absolute;
  for (const fs::path& part : fs::absolute(path, ignored)) {
    if (part != ".") absolute /= part;
  }
  return absolute.string();
}

/// Two to four digits, the first of them not 0; otherwise nothing.
std::optional<int> Pixels(std::string_view digits) {
  int number = 0;
  const char* end = digits.data() + digits.size();
  if (digits.size() < 2 || digits.size() > 4 || digits.front() < '1' || digits.front() > '9' ||
      std::from_chars(digits.data(), end, number).ptr != end) {
    return std::nullopt;
  }
  return number;
}

/// "1000x700"; nothing when it is no size.
std::optional<QSize> ReadSize(std::string_view text) {
  const auto cross = std::min(text.find('x'), text.size());
  const auto width = Pixels(text.substr(0, cross));
  const auto height = Pixels(text.substr(std::min(cross + 1, text.size())));
  if (!width || !height) return std::nullopt;
  return QSize(*width, *height);
}

class Arguments {
 public:
  Arguments() {
    parser_.setApplicationDescription("Zanth Manager: an editor for CON files");
    parser_.addPositionalArgument("FILE", "files to open", "[FILE...]");
    parser_.addOptions({help_, version_, store_, hostDirectory_, dark_, light_, screenshot_,
                        automation_, noAutomation_, size_});
  }

  /// What is wrong with the arguments; empty when nothing is.
  std::string Read(int argc, char** argv) {
    QStringList words;
    for (int i = 0; i < argc; ++i) words << ToQt(argv[i]);
    if (!parser_.parse(words)) return Bytes(parser_.errorText());
    for (const auto check : {&Arguments::BadCombination, &Arguments::BadValue}) {
      if (std::string reason = (this->*check)(); !reason.empty()) return reason;
    }
    return {};
  }

  bool WantsHelp() const { return parser_.isSet(help_); }
  bool WantsVersion() const { return parser_.isSet(version_); }

  std::string Help() const {
    // Qt asks the application for the program's name.
    std::string name = "zanth-manager";
    int count = 1;
    char* words[] = {name.data(), nullptr};
    const QCoreApplication application(count, words);
    return Bytes(parser_.helpText());
  }

  Options Wanted() const {
    Options options;
    for (const QString& file : parser_.positionalArguments()) {
      options.files.push_back(Absolute(Bytes(file)));
    }
    const std::string store = Value(store_);
    options.store = Absolute(store.empty() ? DefaultSettingsPath() : store);
    options.hostDirectory =
        Absolute(parser_.isSet(hostDirectory_) ? Value(hostDirectory_) : DefaultHostDirectory());
    if (parser_.isSet(dark_)) options.scheme = ColourScheme::kDark;
    if (parser_.isSet(light_)) options.scheme = ColourScheme::kLight;
    if (parser_.isSet(automation_)) options.automation = true;
    if (parser_.isSet(noAutomation_)) options.automation = false;
    options.screenshot = Value(screenshot_);
    options.size = ReadSize(Value(size_));
    return options;
  }

 private:
  std::string Value(const QCommandLineOption& option) const { return Bytes(parser_.value(option)); }

  std::string BadCombination() const {
    for (const auto* option : {&store_, &hostDirectory_, &screenshot_, &size_}) {
      if (parser_.values(*option).size() > 1) return Name(*option) + " is given more than once";
    }
    const std::pair<const QCommandLineOption&, const QCommandLineOption&> exclusive[] = {
        {dark_, light_}, {screenshot_, automation_}, {automation_, noAutomation_}};
    for (const auto& [one, other] : exclusive) {
      if (parser_.isSet(one) && parser_.isSet(other)) {
        return Name(one) + " and " + Name(other) + " exclude each other";
      }
    }
    return {};
  }

  std::string BadValue() const {
    std::error_code error;
    for (const QString& file : parser_.positionalArguments()) {
      if (fs::is_directory(Bytes(file), error)) return Bytes(file) + " is a directory";
    }
    if (parser_.isSet(hostDirectory_) && !fs::is_directory(Value(hostDirectory_), error)) {
      return Value(hostDirectory_) + " is no directory";
    }
    if (parser_.isSet(size_) && !ReadSize(Value(size_))) {
      return "a size is WIDTHxHEIGHT in pixels, such as 1000x700";
    }
    return {};
  }

  static std::string Name(const QCommandLineOption& option) {
    return "--" + Bytes(option.names().constLast());
  }

  QCommandLineOption help_{{"h", "help"}, "print this help and exit"};
  QCommandLineOption version_{"version", "print the version and exit"};
  QCommandLineOption store_{"store", "file of the settings store", "FILE"};
  QCommandLineOption hostDirectory_{"host-dir", "directory of the template files", "DIR"};
  QCommandLineOption dark_{"dark", "dark colours, whatever the desktop has"};
  QCommandLineOption light_{"light", "light colours"};
  QCommandLineOption screenshot_{"screenshot", "save a picture of the window to this file and exit",
                                 "FILE"};
  QCommandLineOption automation_{
      "automation", "let other programs use the editor; report if that is not possible"};
  QCommandLineOption noAutomation_{"no-automation", "let no other program use the editor"};
  QCommandLineOption size_{"size", "size of the window in pixels", "WxH"};
  QCommandLineParser parser_;
};

}  // namespace

std::optional<Options> ParseOptions(int argc, char** argv, int& exitStatus) {
  Arguments arguments;
  const std::string problem = arguments.Read(argc, argv);
  exitStatus = 0;
  if (arguments.WantsHelp()) {
    std::cout << arguments.Help();
  } else if (arguments.WantsVersion()) {
    std::cout << "zanth-manager " TESSEL_VERSION "\n";
  } else if (problem.empty()) {
    return arguments.Wanted();
  } else {
    TellOnStandardError(problem);
    std::cerr << "Run 'zanth-manager --help' for details.\n";
    exitStatus = kBadArguments;
  }
  return std::nullopt;
}

}  // namespace tessel
