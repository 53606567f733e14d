// The command line and the files named on it. An input is the arguments, a line each, then an empty
// line, then the bytes of the files "user.con" and "words.txt". The program works in a directory of
// its own, and arguments with a slash are none: nothing leaves that directory.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Program.h"
#include "fuzz/Fuzzing.h"
#include "posix/Posix.h"
#include "support/TempDirectory.h"

namespace tessel::fuzz {
namespace {

constexpr std::size_t kMostArguments = 16;

using Arguments = std::vector<std::string>;

/// The directory that the program works in, and the one that holds its store.
struct Place {
  test::TempDirectory work;
  test::TempDirectory home;
  posix::Descriptor start{::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};

  Place() {
    // "-" has an end at once.
    Require(::dup2(::open("/dev/null", O_RDWR | O_CLOEXEC), STDIN_FILENO) == STDIN_FILENO,
            "standard input is there");
    ::setenv("ZANTHMAN_STORE", (home / "settings.db").c_str(), 1);
    ::setenv("HOME", home.Path().c_str(), 1);
  }
  /// Goes there; the fuzzer's own paths hold in the directory where it was started.
  void Enter() const { Require(::chdir(work.Path().c_str()) == 0, "the directory is there"); }
  void Leave() const { Require(::fchdir(start.Number()) == 0, "the way back is there"); }

  void Prepare(const std::string& bytes) const {
    for (const auto* directory : {&work, &home}) {
      for (const std::string& name : directory->Names()) {
        std::filesystem::remove_all(*directory / name);
      }
    }
    work.Put("user.con", bytes);
    work.Put("words.txt", bytes);
  }
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const std::string& name : work.Names()) files[name] = test::BytesOf(work / name);
    return files;
  }
};

struct Outcome {
  int status = -1;
  std::string out, err;
};

Outcome Run(Arguments arguments) {
  std::vector<char*> argv;
  arguments.insert(arguments.begin(), "tessel");
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  std::ostringstream out;
  std::ostringstream err;
  auto* const oldOut = std::cout.rdbuf(out.rdbuf());
  auto* const oldErr = std::cerr.rdbuf(err.rdbuf());
  const int status = cli::RunProgram(static_cast<int>(arguments.size()), argv.data());
  std::cout.rdbuf(oldOut);
  std::cerr.rdbuf(oldErr);
  return {status, out.str(), err.str()};
}

bool Has(const Arguments& arguments, std::string_view start) {
  return std::ranges::any_of(arguments, [&](const std::string& a) { return a.starts_with(start); });
}

bool HasPair(const Arguments& arguments, std::string_view first, std::string_view second) {
  const auto at = std::ranges::find(arguments, first);
  return at != arguments.end() && at + 1 != arguments.end() && at[1] == second;
}

/// UTF-8 without control characters of either set but tabs and line feeds.
bool IsPlainText(const std::string& text) {
  if (nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) !=
      nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::ignore)) {
    return false;
  }
  unsigned char before = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < 0x20 && c != '\n' && c != '\t') || byte == 0x7F) return false;
    if (before == 0xC2 && byte < 0xA0) return false;
    before = byte;
  }
  return true;
}

std::string WithoutColours(const std::string& text) {
  static const std::regex kColour("\x1b\\[(0|38;2;[0-9]{1,3};[0-9]{1,3};[0-9]{1,3})m");
  return std::regex_replace(text, kColour, "");
}

/// Is there the option? Behind "--" there is none, and what follows an option may be its value.
bool HasFlag(const Arguments& arguments, std::string_view flag) {
  const auto end = std::ranges::find(arguments, "--");
  for (auto at = arguments.begin(); at != end; ++at) {
    if (*at == flag && at != arguments.begin() && !std::prev(at)->starts_with('-')) return true;
  }
  return false;
}

/// Does the command print the document's bytes as they are?
bool PrintsBytes(const Arguments& arguments) {
  const std::string& command = arguments.front();
  if (HasFlag(arguments, "--json") || HasFlag(arguments, "--tsv")) return false;
  return command == "convert" || command == "randomize" || command == "set" || command == "new" ||
         command == "level" || HasPair(arguments, "words", "export");
}

/// Its value follows "--format" or "--format=" as an argument of its own, or within the latter.
bool HasFormat(const Arguments& arguments, const std::string& format) {
  return arguments.front() == "colour" &&
         (HasPair(arguments, "--format", format) || HasPair(arguments, "--format=", format) ||
          Has(arguments, "--format=" + format));
}

/// Only what surely does: other lines may, too.
bool PrintsJson(const Arguments& arguments) {
  const bool lists = arguments.front() == "settings" || arguments.front() == "levels" ||
                     arguments.front() == "get" || HasPair(arguments, "words", "list");
  return HasFormat(arguments, "json") || (lists && HasFlag(arguments, "--json"));
}

void RequireFilesKept(const Arguments& arguments, const Outcome& outcome,
                      const std::map<std::string, std::string>& before,
                      const std::map<std::string, std::string>& after) {
  const bool mayWrite =
      Has(arguments, "-o") || Has(arguments, "--output") || Has(arguments, "--in-place");
  if (!mayWrite) Require(before == after, "without -o and --in-place no file changes");
  // Of several files those that were changed stay so.
  const bool several = Has(arguments, "--in-place");
  if (outcome.status != 0 && !several) Require(before == after, "a failure writes nothing");
  if (HasFlag(arguments, "--dry-run")) Require(before == after, "a dry run writes nothing");
  for (const auto& [name, bytes] : before) {
    Require(after.contains(name), "no file goes");
  }
  for (const auto& [name, bytes] : after) {
    Require(!name.starts_with(".tessel-"), "no half-written file is left");
  }
}

void RequireForm(const Arguments& arguments, const Outcome& outcome) {
  Require(outcome.status >= 0 && outcome.status <= 2, "the exit status is 0, 1 or 2");
  Require(IsPlainText(outcome.err), "what is told is plain text");
  if (outcome.status != 0) Require(!outcome.err.empty(), "a failure is told");
  const bool help = Has(arguments, "-h") || Has(arguments, "--help") || Has(arguments, "--version");
  if (outcome.status != 0 || help || PrintsBytes(arguments)) return;
  if (PrintsJson(arguments)) Require(nlohmann::json::accept(outcome.out), "JSON is JSON");
  std::string shown = outcome.out;
  if (HasFormat(arguments, "html")) {
    Require(shown.starts_with("<!DOCTYPE html>\n"), "a page is a page");
    std::erase(shown, '\r');  // line ends stay as they are
  } else if (HasFormat(arguments, "ansi")) {
    shown = WithoutColours(shown);
  }
  Require(IsPlainText(shown), "what is shown is plain text, but for its colours");
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  static const Place place;
  Input input(data, size);
  Arguments arguments;
  for (std::string line = input.Line(); !line.empty(); line = input.Line()) {
    const bool leaves = line.find('/') != line.npos || line.starts_with("--store");
    if (leaves || line.find('\0') != line.npos) return 0;
    arguments.push_back(line);
  }
  if (arguments.empty() || arguments.size() > kMostArguments) return 0;
  place.Prepare(input.Rest());
  const auto before = place.Files();
  place.Enter();
  const Outcome outcome = Run(arguments);
  place.Leave();
  RequireFilesKept(arguments, outcome, before, place.Files());
  RequireForm(arguments, outcome);
  return 0;
}
