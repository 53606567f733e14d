#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "text/TextStore.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Colour kRed = 0x0000C8;
constexpr Colour kGreen = 0x008000;

class StoreWith : public TextStore {
 public:
  explicit StoreWith(std::string bytes) { Assign(std::move(bytes)); }
};

TEST(TextStore, HoldsOneContiguousText) {
  StoreWith store("abc");
  store.Replace(1, 1, "xyz", kBlack);
  EXPECT_EQ(store.Bytes(), "axyzc");
  EXPECT_EQ(store.Length(), 5);
}

TEST(TextStore, GivesMaximalRunsOfOneColour) {
  StoreWith store("abcdef");
  EXPECT_THAT(store.Runs(0, 6), ElementsAre(ColourRun{0, 6, kBlack}));
  store.Paint(1, 2, kRed);
  store.Paint(3, 2, kRed);
  EXPECT_THAT(store.Runs(0, 6),
              ElementsAre(ColourRun{0, 1, kBlack}, ColourRun{1, 4, kRed}, ColourRun{5, 1, kBlack}));
  EXPECT_THAT(store.Runs(2, 2), ElementsAre(ColourRun{2, 2, kRed}));
  EXPECT_THAT(store.Runs(2, 0), IsEmpty());
}

TEST(TextStore, KnowsTheOneColourOfARange) {
  StoreWith store("abcd");
  store.Paint(1, 2, kRed);
  EXPECT_EQ(store.UniformColour(1, 2), kRed);
  EXPECT_EQ(store.UniformColour(0, 1), kBlack);
  EXPECT_EQ(store.UniformColour(0, 2), std::nullopt);
  EXPECT_EQ(store.UniformColour(0, 0), std::nullopt);
}

TEST(TextStore, InheritsTheColourOfTheReplacedTextElseOfTheOneBefore) {
  StoreWith store("abcd");
  store.Paint(0, 1, kRed);
  store.Paint(2, 1, kGreen);
  EXPECT_EQ(store.InheritedColour(2, 2), kGreen);
  EXPECT_EQ(store.InheritedColour(1, 0), kRed);
  EXPECT_EQ(store.InheritedColour(0, 0), kBlack);
  EXPECT_EQ(store.InheritedColour(4, 0), kBlack);
}

TEST(TextStore, HoldsAtMost256ColoursAndStaysWholeBeyond) {
  StoreWith store("a");
  for (Colour colour = 1; colour < 256; ++colour) store.Paint(0, 1, colour);
  EXPECT_THROW(store.Paint(0, 1, 256), RuntimeError);
  EXPECT_THROW(store.Replace(0, 1, "bc", 256), RuntimeError);
  EXPECT_EQ(store.Bytes(), "a");
  EXPECT_EQ(store.ColourAt(0), 255U);
  EXPECT_FALSE(store.CanUndo());
}

TEST(TextStore, UndoesTheEditsOfAStepTogether) {
  StoreWith store("abc");
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
  StoreWith store("");
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
  StoreWith store("a");
  store.BeginStep(true);
  store.Replace(1, 0, "b", kBlack);
  store.EndStep();
  EXPECT_EQ(store.Undo(), 1);
  EXPECT_EQ(store.Bytes(), "a");
}

TEST(TextStore, MakesNoStepOfAStepWithoutEdits) {
  StoreWith store("a");
  store.BeginStep(false);
  store.Replace(1, 0, "", kBlack);
  store.EndStep();
  EXPECT_FALSE(store.CanUndo());
}

TEST(TextStore, NestsSteps) {
  StoreWith store("");
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
  StoreWith store("abc");
  store.Paint(0, 1, kRed);
  store.Replace(3, 0, "d", kBlack);
  const std::uint64_t revision = store.Revision();
  EXPECT_EQ(store.TakeBytes(), "abcd");
  EXPECT_EQ(store.Bytes(), "");
  EXPECT_NE(store.Revision(), revision);
  EXPECT_FALSE(store.CanUndo());
  EXPECT_THAT(store.Runs(0, store.Length()), IsEmpty());
  EXPECT_EQ(store.Palette().size(), 1);
}

/// What those who follow the text hear: "at-removed+inserted", "&" in front of what joins a step.
class Heard {
 public:
  explicit Heard(TextStore& store)
      : subscriptions_{store.Edited.Connect([this](const TextEdit& edit) {
                         text_ += (edit.joins ? "&" : "") + std::to_string(edit.at) + "-" +
                                  std::string(edit.removed) + "+" + std::string(edit.inserted) +
                                  " ";
                       }),
                       store.Reset.Connect([this] { text_ += "reset "; })} {}
  std::string Take() { return std::exchange(text_, {}); }

 private:
  std::string text_;
  std::vector<Subscription> subscriptions_;
};

TEST(TextStore, TellsEveryReplacementWithWhatItRemoved) {
  StoreWith store("abc");
  Heard heard(store);
  store.Replace(1, 1, "xy", kBlack);
  store.Replace(4, 0, "!", kBlack);
  EXPECT_EQ(heard.Take(), "1-b+xy 4-+! ");
  store.Undo();
  store.Redo();
  EXPECT_EQ(heard.Take(), "4-!+ 4-+! ");
}

TEST(TextStore, TellsWhichReplacementsAreOneStep) {
  StoreWith store("ab");
  Heard heard(store);
  store.BeginStep(false);
  store.Replace(0, 1, "x", kBlack);
  store.Replace(1, 0, "y", kBlack);
  store.Replace(2, 1, "", kBlack);
  store.EndStep();
  EXPECT_EQ(heard.Take(), "0-a+x &1-+y &2-b+ ");
  store.Undo();
  EXPECT_EQ(heard.Take(), "2-+b &0-xy+a ");
  store.Redo();
  EXPECT_EQ(heard.Take(), "0-a+xy &2-b+ ");
}

TEST(TextStore, TellsWhenItIsAnotherText) {
  StoreWith store("abc");
  Heard heard(store);
  auto snapshot = store.TakeSnapshot();
  store.Assign("other");
  store.Restore(std::move(snapshot));
  store.TakeBytes();
  EXPECT_EQ(heard.Take(), "reset reset reset ");
}

TEST(TextStore, GoesBackToASnapshot) {
  StoreWith store("abc");
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
  StoreWith store("abc");
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
