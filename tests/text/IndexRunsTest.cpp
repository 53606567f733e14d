#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "text/IndexRuns.h"

namespace tessel::test {
namespace {

std::string AllOf(const IndexRuns& runs) {
  std::string all;
  while (std::ssize(all) < runs.Length()) {
    const IndexRuns::Stretch stretch = runs.At(std::ssize(all));
    EXPECT_EQ(stretch.begin, std::ssize(all));
    all.append(static_cast<std::size_t>(stretch.end - stretch.begin), stretch.index);
  }
  return all;
}

TEST(IndexRuns, AreOfOneIndexAtFirst) {
  EXPECT_EQ(AllOf(IndexRuns(200'000, 'a')), std::string(200'000, 'a'));
  EXPECT_EQ(AllOf(IndexRuns()), "");
}

TEST(IndexRuns, OfOneIndexAreOneStretch) {
  IndexRuns runs(10, 'a');
  runs.Replace(3, 0, 4, 'a');
  runs.Replace(2, 5, 1, 'a');
  const IndexRuns::Stretch stretch = runs.At(4);
  EXPECT_EQ(stretch.begin, 0);
  EXPECT_EQ(stretch.end, 10);
}

TEST(IndexRuns, GrowByNoStretchPerKeyInALongOne) {
  IndexRuns runs(1'000'000, 'a');
  const auto stretches = [&] {
    int count = 0;
    for (Position at = 0; at < runs.Length(); at = runs.At(at).end) ++count;
    return count;
  };
  const int before = stretches();
  for (Position at = 0; at < 40'000; ++at) runs.Replace(at, 0, 1, 'a');
  EXPECT_LE(stretches(), before + 3);
}

TEST(IndexRuns, ThatWereAllTakenAwayCanBeFilledAgain) {
  IndexRuns runs(5, 'a');
  runs.Replace(0, 5, 0, 'b');
  EXPECT_EQ(runs.Length(), 0);
  runs.Replace(0, 0, 3, 'b');
  EXPECT_EQ(AllOf(runs), "bbb");
}

// Enough runs for many chunks, painted over as a colouring pass does it: word by word.
TEST(IndexRuns, PaintedInManyPassesAreThoseOfAnArray) {
  std::string model(60'000, 'a');
  IndexRuns runs(std::ssize(model), 'a');
  for (const std::size_t step : {7U, 11U, 3U, 501U}) {
    for (std::size_t at = step; at + 5 < model.size(); at += step) {
      const char index = static_cast<char>('a' + step % 5);
      model.replace(at, 2, 2, index);
      runs.Fill(static_cast<Position>(at), 2, index);
    }
    ASSERT_EQ(AllOf(runs), model);
  }
  runs.Replace(10, std::ssize(model) - 20, 100, 'z');
  model.replace(10, model.size() - 20, 100, 'z');
  EXPECT_EQ(AllOf(runs), model);
}

RC_GTEST_PROP(IndexRuns, AreThoseOfAnArrayAfterAnyEdits, ()) {
  std::string model(*rc::gen::inRange<std::size_t>(0, 3000), 'a');
  IndexRuns runs(std::ssize(model), 'a');
  const int edits = *rc::gen::inRange(1, 400);
  for (int i = 0; i < edits; ++i) {
    const auto at = *rc::gen::inRange<std::size_t>(0, model.size() + 1);
    const auto most = std::min<std::size_t>(model.size() - at, *rc::gen::element(3, 20, 2000));
    const auto removed = *rc::gen::inRange<std::size_t>(0, most + 1);
    const auto inserted =
        *rc::gen::element<std::size_t>(0, 1, removed, removed, removed, 30, 70'000);
    const char index = *rc::gen::element('a', 'b', 'c', '\xFF');
    if (model.size() + inserted > 300'000) continue;
    model.replace(at, removed, inserted, index);
    if (removed == inserted) {
      runs.Fill(static_cast<Position>(at), static_cast<Position>(removed), index);
    } else {
      runs.Replace(static_cast<Position>(at), static_cast<Position>(removed),
                   static_cast<Position>(inserted), index);
    }
    RC_ASSERT(runs.Length() == std::ssize(model));
    if (model.empty()) continue;
    const auto look = *rc::gen::inRange<std::size_t>(0, model.size());
    const IndexRuns::Stretch stretch = runs.At(static_cast<Position>(look));
    RC_ASSERT(stretch.begin <= static_cast<Position>(look));
    RC_ASSERT(stretch.end > static_cast<Position>(look));
    RC_ASSERT(stretch.index == model[look]);
  }
  RC_ASSERT(AllOf(runs) == model);
}

}  // namespace
}  // namespace tessel::test
