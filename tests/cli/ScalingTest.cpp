// Time grows with the length of a text and not faster, whatever the text repeats.
#include <sys/resource.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

struct Repeated {
  const char* name;
  const char* start;
  const char* piece;
};

constexpr Repeated kTexts[] = {
    {"UnterminatedComment", "/*", " define A 1\r\n"},
    {"CommentOpeners", "", "/*"},
    {"EqualDefines", "", "define MAXPLAYERHEALTH 100\r\n"},
    {"EqualWords", "", "MAXPLAYERHEALTH "},
    {"Levels", "", "definelevelname 0 1 E1L2.map 01:00 02:00 TITLE\r\n"},
    {"OneLine", "", "define A 1 // "},
    {"OneWord", "", "x"},
};

const std::vector<std::string> kMeasuredCommands[] = {
    {"colour", "FILE"},
    {"settings", "FILE"},
    {"get", "FILE", "MAXPLAYERHEALTH"},
    {"set", "FILE", "MAXPLAYERHEALTH=5"},
    {"levels", "FILE"},
    {"randomize", "FILE", "--section", "Player", "--lower", "1", "--upper", "5"},
    {"convert", "FILE"},
};

constexpr std::size_t kSize = 1'000'000;
constexpr std::size_t kTimesLonger = 4;
/// Four times the text may take this many times as long: a pass for each piece would make it 16.
constexpr double kMost = 8;
/// What a start alone may take, in seconds.
constexpr double kStart = 0.02;

double SecondsOfChildren() {
  rusage used{};
  ::getrusage(RUSAGE_CHILDREN, &used);
  return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
         1e-6 * static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec);
}

class Scaling : public CommandLineTest, public testing::WithParamInterface<Repeated> {
 protected:
  void PutText(const std::string& name, std::size_t size) const {
    const auto& [label, start, piece] = GetParam();
    std::string text = start;
    text.reserve(size + 64);
    while (text.size() < size) text += piece;
    Put(name, text);
  }
  /// The least of three runs, in seconds of the processor.
  double Seconds(std::vector<std::string> arguments, const std::string& name) {
    std::ranges::replace(arguments, std::string("FILE"), name);
    double least = 1e9;
    for (int run = 0; run < 3; ++run) {
      const double before = SecondsOfChildren();
      EXPECT_LE(Tessel(arguments).status, 2);
      least = std::min(least, SecondsOfChildren() - before);
    }
    return least;
  }
};

TEST_P(Scaling, IsLinearInEveryCommand) {
#ifdef TESSEL_SANITIZED
  GTEST_SKIP() << "the sanitizers' own work is no measure";
#endif
  PutText("short.con", kSize);
  PutText("long.con", kTimesLonger * kSize);
  for (const auto& command : kMeasuredCommands) {
    const double shorter = std::max(Seconds(command, "short.con"), kStart);
    EXPECT_LE(Seconds(command, "long.con"), kMost * shorter) << command.front();
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, Scaling, testing::ValuesIn(kTexts),
                         [](const auto& given) { return std::string(given.param.name); });

}  // namespace
}  // namespace tessel::test
