#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "text/ChangedRange.h"

namespace tessel::test {
namespace {

struct Edit {
  ChangedRange range;
  std::string inserted;
};

/// Any edit that fits the text.
Edit AnyEditOf(const std::string& text) {
  const auto at = *rc::gen::inRange<Position>(0, std::ssize(text) + 1);
  const auto removed = *rc::gen::inRange<Position>(0, std::ssize(text) - at + 1);
  const auto inserted = *rc::gen::container<std::string>(rc::gen::inRange('a', 'f'));
  return {{at, removed, std::ssize(inserted)}, inserted};
}

void Apply(const ChangedRange& range, std::string_view inserted, std::string& text) {
  text.replace(static_cast<std::size_t>(range.at), static_cast<std::size_t>(range.removed),
               inserted);
}

RC_GTEST_PROP(ChangedRange, OfSeveralEditsTurnsTheOldTextIntoTheNewOne, ()) {
  const auto before = *rc::gen::container<std::string>(rc::gen::inRange('A', 'F'));
  std::string text = before;
  std::optional<ChangedRange> whole;
  for (int i = *rc::gen::inRange(1, 6); i > 0; --i) {
    const Edit edit = AnyEditOf(text);
    Apply(edit.range, edit.inserted, text);
    whole = whole ? whole->Then(edit.range) : edit.range;
  }
  std::string after = before;
  Apply(*whole,
        std::string_view(text).substr(static_cast<std::size_t>(whole->at),
                                      static_cast<std::size_t>(whole->inserted)),
        after);
  RC_ASSERT(after == text);
}

TEST(ChangedRange, OfARunOfTypingIsWhatWasTyped) {
  const ChangedRange typed = ChangedRange{5, 2, 1}.Then({6, 0, 1}).Then({7, 0, 1});
  EXPECT_EQ(typed, (ChangedRange{5, 2, 3}));
}

TEST(ChangedRange, MovesThePlacesBehindItAndKeepsThoseInFront) {
  const ChangedRange change{5, 2, 4};
  EXPECT_EQ(change.Moved(4), 4);
  EXPECT_EQ(change.Moved(7), 9);
  EXPECT_EQ(change.Moved(8), 10);
}

TEST(ChangedRange, MovesAPlaceAtItsBeginOnlyBehindWhatIsInsertedThere) {
  EXPECT_EQ((ChangedRange{5, 0, 4}).Moved(5), 9);
  EXPECT_EQ((ChangedRange{5, 1, 4}).Moved(5), 5);
}

TEST(ChangedRange, KeepsAPlaceInWhatWasRemovedInsideOfWhatCameForIt) {
  EXPECT_EQ((ChangedRange{5, 4, 2}).Moved(6), 6);
  EXPECT_EQ((ChangedRange{5, 4, 2}).Moved(8), 7);
  EXPECT_EQ((ChangedRange{5, 4, 0}).Moved(8), 5);
}

}  // namespace
}  // namespace tessel::test
