// The drive: lines of commands into a control without a screen. An input is what stands on standard
// input.
#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include "drive/HeadlessPlayer.h"
#include "drive/Session.h"
#include "fuzz/Fuzzing.h"
#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"
#include "services/MemorySettingsStore.h"
#include "support/MemoryFiles.h"

namespace tessel::fuzz {
namespace {

constexpr std::size_t kMostLines = 64;

std::size_t Lines(std::string_view text) {
  const auto breaks = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  return breaks + (text.empty() || text.ends_with('\n') ? 0 : 1);
}

test::MemoryFiles SomeFiles() {
  test::MemoryFiles files;
  files.files["/host/zmuser.dat"] = "define MAXPLAYERHEALTH 100 // x\r\ndefinelevelname 0 1 A.map";
  files.files["/games/user.con"] = "definequote 0 QUOTE\r\n/* a */ state b ends";
  files.readOnly = {"/games/user.con"};
  return files;
}

/// Plays the conversation and returns how many lines were read.
std::size_t Play(const std::string& input, std::ostringstream& out) {
  std::istringstream in(input);
  MemorySettingsStore settings;
  test::MemoryFiles files = SomeFiles();
  MemoryClipboard clipboard;
  IdleMessageLoop loop;
  std::ostringstream errors;
  drive::HeadlessPlayer player;
  try {
    drive::Session session(in, out, errors);
    drive::Stage stage({settings, files, clipboard, loop,
                        [] { return std::make_unique<LinearCongruentialRandom>(); }, "/host"},
                       player, session);
    session.Run(stage);
  } catch (const drive::Left&) {
  }
  if (!in.good()) return Lines(input);
  return Lines(std::string_view(input).substr(0, static_cast<std::size_t>(in.tellg())));
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  const std::string input(AsText(data, size));
  if (Lines(input) > kMostLines) return 0;
  std::ostringstream out;
  const std::size_t read = Play(input, out);

  const std::string replies = out.str();
  Require(replies.empty() || replies.ends_with('\n'), "every reply is a whole line");
  std::istringstream lines(replies);
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const auto reply = drive::Json::parse(line, nullptr, false);
    Require(reply.is_object() && reply.contains("ok") && reply.contains("events"),
            "a reply is an object with what is promised");
  }
  Require(count == read, "every line has one reply");
  return 0;
}
