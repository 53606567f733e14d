// The user's language and country change no byte and no number.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>

#include "randomizer/frmRand.h"
#include "support/ChildProcess.h"
#include "support/RealWorld.h"

namespace tessel::test {
namespace {

class Locale : public testing::TestWithParam<const char*> {
 protected:
  /// Colours, randomizes, sets a value and converts; the text afterwards.
  std::string Work() const {
    Program program(directory / "settings.db");
    program.Open(path);
    program.Controls().tbToolBar.Press("Colorize");
    program.fakes.forms.scripts = {[](Form& form) {
      auto& range = dynamic_cast<frmRand&>(form);
      range.cmbChoose[0].Type("10.5");
      range.cmbChoose[1].Type("1500.25");
      range.cmdOk.Press();
    }};
    program.Controls().tbToolBar.Press("RandSec");
    program.Controls().lstPlayers.Pick(1);
    program.Controls().cmbweap[0].Type("1234.5");
    program.control.Convert();
    return program.ToldInALine() + program.Editor().Text();
  }
  /// The same in a process that took the locale over as desktop programs do.
  std::string WorkIn(const std::string& locale) const {
    return InChild([&]() -> std::string {
      ::setenv("LOCPATH", directory.Path().c_str(), 1);
      ::setenv("LC_ALL", locale.c_str(), 1);
      if (std::setlocale(LC_ALL, "") == nullptr) return "there is no such locale";
      std::locale::global(std::locale(""));
      return Work();
    });
  }

  TempDirectory directory;
  std::string path = directory.Put("user.con", [] {
    std::ifstream file(TESSEL_TEST_DATA_DIR "/zmuser.dat", std::ios::binary);
    return (std::ostringstream() << file.rdbuf()).str();
  }());
};

TEST_P(Locale, ChangesNoByteAndNoNumber) {
  const std::string name = GetParam();
  const std::string make = "localedef --no-archive -i " + name + " -f UTF-8 " +
                           directory / (name + ".UTF-8") + " >/dev/null 2>&1";
  if (std::system(make.c_str()) != 0) GTEST_SKIP() << "this system cannot make the locale";
  const std::string plain = WorkIn("C");
  EXPECT_THAT(plain, testing::HasSubstr("1234.5"));
  EXPECT_TRUE(WorkIn(name + ".UTF-8") == plain);
}

// A decimal comma, and an I without a dot.
INSTANTIATE_TEST_SUITE_P(Of, Locale, testing::Values("de_DE", "tr_TR"));

}  // namespace
}  // namespace tessel::test
