#include "cli/CommandLineTest.h"
#include "documents/Templates.h"

namespace tessel::test {
namespace {

class CommandLineNew : public CommandLineTest {};

TEST_F(CommandLineNew, PrintsEachTemplateByteForByte) {
  for (const Template& entry : kTemplates) {
    EXPECT_EQ(OutputOf({"new", std::string(entry.code)}), TemplateText(std::string(entry.file)));
  }
}

TEST_F(CommandLineNew, WritesAFile) {
  EXPECT_EQ(OutputOf({"new", "15AU", "-o", "User.con"}), "");
  EXPECT_EQ(Bytes("User.con"), TemplateText("zmuserp.dat"));
}

TEST_F(CommandLineNew, TakesACodeInAnyCase) {
  EXPECT_EQ(OutputOf({"new", "15au"}), TemplateText("zmuserp.dat"));
}

TEST_F(CommandLineNew, ReplacesAFileOnlyWhenForced) {
  Put("User.con", "mine");
  ExpectRefusal({"new", "15AU", "-o", "User.con"},
                "Cannot save User.con: it exists already; --force replaces it.");
  EXPECT_EQ(OutputOf({"new", "15AU", "-o", "User.con", "--force"}), "");
  EXPECT_EQ(Bytes("User.con"), TemplateText("zmuserp.dat"));
}

TEST_F(CommandLineNew, NamesTheTemplateThatIsMissing) {
  const std::string copy = home_ / "tessel";
  std::filesystem::copy_file(TESSEL_PROGRAM, copy);
  const Outcome outcome = Shell(copy + " new 15AU -o User.con");
  if (outcome.status == 0) GTEST_SKIP() << "another one is installed, with its templates";
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::MatchesRegex("tessel: File .*/zmuserp.dat not found.\n"));
  EXPECT_TRUE(files_.Names().empty());
}

TEST_F(CommandLineNew, KnowsItsTemplates) {
  ExpectUsageError({"new", "14XX"}, "CODE: \"14XX\" is none of 13DU, 15AU, 13DD, 15AD, 13DG, 15AG",
                   "tessel new");
  EXPECT_EQ(Tessel({"new", ""}).status, 2);
}

}  // namespace
}  // namespace tessel::test
