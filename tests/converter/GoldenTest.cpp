// A whole user file of the older dialect converted, byte for byte, and which of its bytes are red.
// golden/user-13d.con is the file, .converted.con what becomes of it, .converted.red each line of
// that which is red anywhere. The file is the user template of some day: what is added to the
// template since does not touch it. scripts/refresh-goldens.sh writes what comes out now.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "RedText.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::IsEmpty;

std::string FileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Golden(const std::string& name) { return FileBytes(TESSEL_GOLDEN_DIR "/" + name); }

/// Compares with the golden. TESSEL_GOLDEN_OUT names a directory that takes what comes out.
void ExpectGolden(const std::string& actual, const std::string& name) {
  if (const char* out = std::getenv("TESSEL_GOLDEN_OUT")) {
    std::ofstream(std::string(out) + "/" + name, std::ios::binary) << actual;
  }
  EXPECT_EQ(actual, Golden(name)) << "scripts/refresh-goldens.sh shows the difference";
}

/// The lines that are red anywhere, one a line with their number: "12: define A{ new\r\n}".
std::string RedLines(const RichTextBox& editor) {
  std::string lines;
  std::string line;
  int number = 1;
  bool inRed = false;
  const auto endLine = [&] {
    if (inRed) line += '}';
    if (line.find('{') != std::string::npos) lines += std::to_string(number) + ": " + line + "\n";
    line.clear();
    inRed = false;
    ++number;
  };
  for (Position at = 0; at < editor.Length(); ++at) {
    const bool red = editor.Store().ColourAt(at) == kConvertedRed;
    if (red != inRed) line += red ? '{' : '}';
    inRed = red;
    const char c = editor.Bytes()[static_cast<std::size_t>(at)];
    line += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
    if (c == '\n') endLine();
  }
  endLine();
  return lines;
}

class ConvertedFile : public TesselTest {
 protected:
  void SetUp() override {
    ASSERT_FALSE(Golden("user-13d.con").empty());
    Open("/games/user.con", Golden("user-13d.con"));
    ASSERT_EQ(Current().Text(), Golden("user-13d.con"));
    ASSERT_EQ(TabOf(0).image, kBlackDot);
    Control().Convert();
    ASSERT_THAT(world_.messages.shown, IsEmpty());
  }
};

TEST_F(ConvertedFile, IsTheGoldenTextByteForByte) {
  ExpectGolden(Current().Text(), "user-13d.converted.con");
}

TEST_F(ConvertedFile, IsRedWhereItWasWrittenAndNowhereElse) {
  ExpectGolden(RedLines(Current()), "user-13d.converted.red");
}

/// The pieces of lines that are not red. Where a line's end was taken out, two lines' breaks meet.
std::vector<std::string> KeptPieces(const RichTextBox& editor) {
  std::vector<std::string> pieces;
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    if (run.colour == kConvertedRed) continue;
    std::istringstream lines(std::string(editor.Bytes().substr(
        static_cast<std::size_t>(run.start), static_cast<std::size_t>(run.length))));
    for (std::string line; std::getline(lines, line);) {
      if (line.ends_with('\r')) line.pop_back();
      pieces.push_back(line);
    }
  }
  return pieces;
}

TEST_F(ConvertedFile, HasNothingNewThatIsNotRed) {
  const std::string before = Golden("user-13d.con");
  std::size_t reached = 0;
  for (const std::string& kept : KeptPieces(Current())) {
    const std::size_t found = before.find(kept, reached);
    ASSERT_NE(found, std::string::npos) << '"' << kept << '"';
    reached = found + kept.size();
  }
}

TEST_F(ConvertedFile, IsModifiedInItsTab) { EXPECT_EQ(TabOf(0).image, kRedDot); }

}  // namespace
}  // namespace tessel::test
