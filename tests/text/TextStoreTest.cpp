#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "text/TextStore.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Colour kRed = 0x0000C8;
constexpr Colour kGreen = 0x008000;

TextStore StoreWith(std::string bytes) {
  TextStore store;
  store.Assign(std::move(bytes));
  return store;
}

TEST(TextStore, HoldsOneContiguousText) {
  TextStore store = StoreWith("abc");
  store.Replace(1, 1, "xyz", kBlack);
  EXPECT_EQ(store.Bytes(), "axyzc");
  EXPECT_EQ(store.Length(), 5);
}

TEST(TextStore, GivesMaximalRunsOfOneColour) {
  TextStore store = StoreWith("abcdef");
  EXPECT_THAT(store.Runs(0, 6), ElementsAre(ColourRun{0, 6, kBlack}));
  store.Paint(1, 2, kRed);
  store.Paint(3, 2, kRed);
  EXPECT_THAT(store.Runs(0, 6),
              ElementsAre(ColourRun{0, 1, kBlack}, ColourRun{1, 4, kRed}, ColourRun{5, 1, kBlack}));
  EXPECT_THAT(store.Runs(2, 2), ElementsAre(ColourRun{2, 2, kRed}));
  EXPECT_THAT(store.Runs(2, 0), IsEmpty());
}

TEST(TextStore, KnowsTheOneColourOfARange) {
  TextStore store = StoreWith("abcd");
  store.Paint(1, 2, kRed);
  EXPECT_EQ(store.UniformColour(1, 2), kRed);
  EXPECT_EQ(store.UniformColour(0, 1), kBlack);
  EXPECT_EQ(store.UniformColour(0, 2), std::nullopt);
  EXPECT_EQ(store.UniformColour(0, 0), std::nullopt);
}

TEST(TextStore, InheritsTheColourOfTheReplacedTextElseOfTheOneBefore) {
  TextStore store = StoreWith("abcd");
  store.Paint(0, 1, kRed);
  store.Paint(2, 1, kGreen);
  EXPECT_EQ(store.InheritedColour(2, 2), kGreen);
  EXPECT_EQ(store.InheritedColour(1, 0), kRed);
  EXPECT_EQ(store.InheritedColour(0, 0), kBlack);
  EXPECT_EQ(store.InheritedColour(4, 0), kBlack);
}

TEST(TextStore, HoldsAtMost256ColoursAndStaysWholeBeyond) {
  TextStore store = StoreWith("a");
  for (Colour colour = 1; colour < 256; ++colour) store.Paint(0, 1, colour);
  EXPECT_THROW(store.Paint(0, 1, 256), RuntimeError);
  EXPECT_THROW(store.Replace(0, 1, "bc", 256), RuntimeError);
  EXPECT_EQ(store.Bytes(), "a");
  EXPECT_EQ(store.ColourAt(0), 255U);
  EXPECT_FALSE(store.CanUndo());
}

TEST(TextStore, UndoesTheEditsOfAStepTogether) {
  TextStore store = StoreWith("abc");
  store.BeginStep(false);
  store.Replace(0, 1, "", kBlack);
  store.Replace(2, 0, "a", kBlack);
  store.EndStep();
  EXPECT_EQ(store.Bytes(), "bca");
  EXPECT_EQ(store.Undo(), 1);
  EXPECT_EQ(store.Bytes(), "abc");
  EXPECT_EQ(store.Undo(), std::nullopt);
  EXPECT_EQ(store.Redo(), 3);
  EXPECT_EQ(store.Bytes(), "bca");
}

TEST(TextStore, JoinsTheStepBefore) {
  TextStore store = StoreWith("");
  store.Replace(0, 0, "a", kBlack);
  store.BeginStep(true);
  store.Replace(1, 0, "b", kBlack);
  store.EndStep();
  store.Replace(2, 0, "c", kBlack);
  store.Undo();
  EXPECT_EQ(store.Bytes(), "ab");
  store.Undo();
  EXPECT_EQ(store.Bytes(), "");
}

TEST(TextStore, BeginsAStepWhereThereIsNoneToJoin) {
  TextStore store = StoreWith("a");
  store.BeginStep(true);
  store.Replace(1, 0, "b", kBlack);
  store.EndStep();
  EXPECT_EQ(store.Undo(), 1);
  EXPECT_EQ(store.Bytes(), "a");
}

TEST(TextStore, MakesNoStepOfAStepWithoutEdits) {
  TextStore store = StoreWith("a");
  store.BeginStep(false);
  store.Replace(1, 0, "", kBlack);
  store.EndStep();
  EXPECT_FALSE(store.CanUndo());
}

TEST(TextStore, NestsSteps) {
  TextStore store = StoreWith("");
  store.BeginStep(false);
  store.Replace(0, 0, "a", kBlack);
  store.BeginStep(false);
  store.Replace(1, 0, "b", kBlack);
  store.EndStep();
  store.Replace(2, 0, "c", kBlack);
  store.EndStep();
  store.Undo();
  EXPECT_EQ(store.Bytes(), "");
}

TEST(TextStore, GivesItsBytesAwayAndIsAsEmptyAsANewOne) {
  TextStore store = StoreWith("abc");
  store.Paint(0, 1, kRed);
  store.Replace(3, 0, "d", kBlack);
  const std::uint64_t revision = store.Revision();
  EXPECT_EQ(store.TakeBytes(), "abcd");
  EXPECT_EQ(store.Bytes(), "");
  EXPECT_NE(store.Revision(), revision);
  EXPECT_FALSE(store.CanUndo());
  EXPECT_EQ(store.ColourIndices(), "");
  EXPECT_EQ(store.Palette().size(), 1);
}

TEST(TextStore, GoesBackToASnapshot) {
  TextStore store = StoreWith("abc");
  store.Paint(0, 1, kRed);
  store.Replace(3, 0, "d", kBlack);
  auto snapshot = store.TakeSnapshot();
  store.Assign("other");
  store.Restore(std::move(snapshot));
  EXPECT_EQ(store.Bytes(), "abcd");
  EXPECT_EQ(store.ColourAt(0), kRed);
  store.Undo();
  EXPECT_EQ(store.Bytes(), "abc");
}

/// Notes what a view is told.
struct NotingView : TextStoreView {
  std::vector<std::vector<Position>> replaced;
  std::vector<std::vector<Position>> painted;

  void Replaced(Position at, Position removed, Position inserted) override {
    replaced.push_back({at, removed, inserted});
  }
  void Painted(Position at, Position length) override { painted.push_back({at, length}); }
};

TEST(TextStore, TellsItsViewWhatChanged) {
  TextStore store = StoreWith("abc");
  NotingView view;
  store.SetView(&view);
  store.Replace(1, 1, "xy", kBlack);
  store.Paint(1, 2, kRed);
  store.Undo();
  store.Assign("new text");
  EXPECT_THAT(view.replaced,
              ElementsAre(ElementsAre(1, 1, 2), ElementsAre(1, 2, 1), ElementsAre(0, 3, 8)));
  EXPECT_THAT(view.painted, ElementsAre(ElementsAre(1, 2)));
  store.SetView(nullptr);
  store.Assign("");
  EXPECT_EQ(view.replaced.size(), 3U);
}

}  // namespace
}  // namespace tessel::test
