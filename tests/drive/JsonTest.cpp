#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "drive/Fields.h"
#include "drive/Json.h"
#include "drive/Refusal.h"

namespace tessel::drive {
namespace {

Fields Parsed(const std::string& line) { return Fields(ParseCommand(line)); }

RC_GTEST_PROP(DriveJson, CarriesEveryByteThroughALineOfJsonAndBack, (const std::string& bytes)) {
  const std::string line = Json{{"text", FromBytes(bytes)}}.dump();
  RC_ASSERT(Parsed(line).Text("text") == bytes);
}

TEST(DriveJson, ShowsBytesAsTheCodePointsOfTheSameNumber) {
  EXPECT_EQ(FromBytes("A\x80\xff").dump(), "\"A\xc2\x80\xc3\xbf\"");
  EXPECT_EQ(Parsed(R"({"t":"A\u0000\u00ff"})").Text("t"), std::string("A\0\xff", 3));
}

TEST(DriveJson, RefusesCodePointsThatAreNoBytes) {
  EXPECT_THROW(Parsed(R"({"t":"\u0100"})").Text("t"), Refusal);
  EXPECT_THROW(Parsed(R"({"t":"\ud83d\ude00"})").Text("t"), Refusal);
}

TEST(DriveJson, RefusesLinesThatAreNoObjects) {
  for (const char* line : {"", " ", "{", "[]", "1", "null", "\"x\"", "{\"a\":\"\xff\"}",
                           "{\"a\":\"\xc2\"}", "{} {}", "{\"a\":1e999}", "\xef\xbb\xbf{"}) {
    EXPECT_THROW(ParseCommand(line), Refusal) << line;
  }
}

TEST(DriveJson, RefusesDeepNestingWithoutFalling) {
  const std::string deep(200000, '[');
  EXPECT_THROW(ParseCommand(deep), Refusal);
  EXPECT_THROW(ParseCommand(deep + std::string(200000, ']')), Refusal);
}

TEST(DriveFields, NamesWhatIsMissing) {
  try {
    Parsed("{}").Text("control");
    FAIL() << "nothing was refused";
  } catch (const Refusal& refusal) {
    EXPECT_STREQ(refusal.what(), "missing field \"control\"");
  }
}

TEST(DriveFields, TakesWholeNumbersOf32Bits) {
  EXPECT_EQ(Parsed(R"({"n":-2147483648})").Whole("n"), -2147483647 - 1);
  EXPECT_EQ(Parsed(R"({"n":2147483647})").Whole("n"), 2147483647);
  for (const char* line : {R"({"n":2147483648})", R"({"n":-2147483649})",
                           R"({"n":18446744073709551615})", R"({"n":99999999999999999999})",
                           R"({"n":1.5})", R"({"n":"1"})", R"({"n":true})", R"({"n":null})"}) {
    EXPECT_THROW(Parsed(line).Whole("n"), Refusal) << line;
  }
}

TEST(DriveFields, TakesSizesBetweenNothingAndTheLimit) {
  EXPECT_EQ(Parsed(R"({"w":10000.4})").Size("w", 20000), 10000.4);
  EXPECT_EQ(Parsed(R"({"w":0})").Size("w", 20000), 0);
  for (const char* line : {R"({"w":-1})", R"({"w":20001})", R"({"w":1e300})", R"({"w":"1"})"}) {
    EXPECT_THROW(Parsed(line).Size("w", 20000), Refusal) << line;
  }
}

TEST(DriveFields, TakesListsOfTextsOnly) {
  EXPECT_EQ(Parsed(R"({"l":["a","b"]})").Texts("l"), (std::vector<std::string>{"a", "b"}));
  EXPECT_THROW(Parsed(R"({"l":"a"})").Texts("l"), Refusal);
  EXPECT_THROW(Parsed(R"({"l":["a",1]})").Texts("l"), Refusal);
}

}  // namespace
}  // namespace tessel::drive
