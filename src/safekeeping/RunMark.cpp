#include "safekeeping/RunMark.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <optional>
#include <sstream>

#include "posix/Posix.h"

namespace tessel {
namespace {

struct Mark {
  std::string computerStart, processStart, computer;
};

constexpr const char* kUnknown = "-";

/// What the system says in one of its own files.
std::string Told(const std::string& path) try {
  const posix::Descriptor file(
      posix::Checked([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
  return posix::ReadAll(file.Number());
} catch (const posix::FileProblem&) {
  return {};
}

std::string FirstWord(const std::string& text) {
  std::string word;
  std::istringstream(text) >> word;
  return word.empty() ? kUnknown : word;
}

std::string StartOfComputer() { return FirstWord(Told("/proc/sys/kernel/random/boot_id")); }

/// In the system's ticks since the computer was started. See proc(5): the name in front may hold
/// blanks and brackets.
std::string StartOfProcess(long process) {
  constexpr int kFieldsBetween = 19;
  const std::string status = Told("/proc/" + std::to_string(process) + "/stat");
  const std::size_t name = status.rfind(')');
  if (name == status.npos) return kUnknown;
  std::istringstream rest(status.substr(name + 1));
  std::string field;
  for (int i = 0; i <= kFieldsBetween; ++i) rest >> field;
  return field;
}

std::string NameOfComputer() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : kUnknown;
}

std::optional<Mark> Parse(const std::string& line) {
  std::istringstream words(line);
  Mark mark;
  words >> mark.computerStart >> mark.processStart >> std::ws;
  if (!std::getline(words, mark.computer)) return std::nullopt;
  return mark;
}

bool Lives(long process) {
  return process > 0 && (::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

}  // namespace

std::string MarkOfThisRun() {
  return StartOfComputer() + " " + StartOfProcess(::getpid()) + " " + NameOfComputer() + "\n";
}

RunState StateOfRun(long process, const std::string& mark) {
  const auto left = Parse(mark);
  if (!left) return Lives(process) ? RunState::kLives : RunState::kEnded;
  if (left->computer != NameOfComputer()) return RunState::kElsewhere;
  const bool same = left->computerStart == StartOfComputer() && Lives(process) &&
                    left->processStart == StartOfProcess(process);
  return same ? RunState::kLives : RunState::kEnded;
}

std::string ComputerIn(const std::string& mark) { return Parse(mark).value_or(Mark{}).computer; }

}  // namespace tessel
