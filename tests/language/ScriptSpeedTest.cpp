// An edit costs a small part of a whole reading, wherever it is: both are measured here, on the
// same machine under the same load, as the best of several.
#include <gtest/gtest.h>
#include <time.h>

#include <algorithm>
#include <string>

#include "data/DataFiles.h"
#include "language/Script.h"
#include "support/BestSeconds.h"

namespace tessel::language {
namespace {

class ScriptSpeed : public testing::Test {
 protected:
  ScriptSpeed() {
    const std::string once = test::ReadDataFile("zmgame.dat") + test::ReadDataFile("zmuser.dat");
    while (text_.size() < 4'000'000) text_ += once;
  }

  /// Writing something at a part of the text and taking it away again, beside a whole reading.
  void ExpectCheap(double part, const std::string& written) {
    const auto at = static_cast<std::size_t>(part * static_cast<double>(text_.size()));
    const std::string after = std::string(text_).insert(at, written);
    Script script(text_);
    const auto offset = static_cast<Position>(at);
    const double whole = test::BestSecondsOf(3, [&] { script = Script(text_); });
    const double edits = test::BestSecondsOf(5, [&] {
      script.Update(after, offset, 0, std::ssize(written));
      script.Update(text_, offset, std::ssize(written), 0);
    });
    constexpr double kPart = 20;  // it is some 300
    EXPECT_LT(edits, whole / kPart) << written << " at " << part;
  }

  std::string text_;
};

TEST_F(ScriptSpeed, OfAnEditIsThatOfTheLinesAroundIt) {
  for (const double part : {0.0, 0.5, 1.0}) ExpectCheap(part, "x");
}

TEST_F(ScriptSpeed, OfOpeningACommentIsNotThatOfAllItSwallows) {
  // No comment is closed behind it.
  for (std::size_t at = text_.find("*/"); at != text_.npos; at = text_.find("*/", at)) {
    text_.replace(at, 2, "//");
  }
  for (std::size_t at = text_.find("/*"); at != text_.npos; at = text_.find("/*", at)) {
    text_.replace(at, 2, "//");
  }
  ExpectCheap(0, "/* ");
}

TEST_F(ScriptSpeed, OfAskingForAPlaceIsThatOfTheLinesAroundIt) {
  const Script script(text_);
  const double whole = test::BestSecondsOf(3, [&] { EXPECT_GT(Script(text_).LineCount(), 1); });
  const double asking = test::BestSecondsOf(5, [&] {
    const Position at = script.Length() - 1;
    EXPECT_GT(script.PlaceOf(at).line, 1);
    EXPECT_FALSE(script.IsInComment(at));
    EXPECT_TRUE(script.LastMarkUpTo(at).has_value());
  });
  EXPECT_LT(asking, whole / 20);
}

}  // namespace
}  // namespace tessel::language
