#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

TEST(MemoryClipboard, KeepsBytesUntilItIsCleared) {
  MemoryClipboard clipboard;
  EXPECT_EQ(clipboard.GetText(), "");
  const std::string bytes("a\0\xFF\r\n", 5);
  clipboard.SetText(bytes);
  EXPECT_EQ(clipboard.GetText(), bytes);
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), "");
}

TEST(PlainScreenPointer, TellsOnlyARealChange) {
  PlainScreenPointer pointer;
  std::vector<PointerShape> told;
  const Subscription changed =
      pointer.Changed.Connect([&](PointerShape shape) { told.push_back(shape); });
  EXPECT_EQ(pointer.Shape(), PointerShape::kDefault);
  pointer.SetShape(PointerShape::kDefault);
  pointer.SetShape(PointerShape::kHourglass);
  pointer.SetShape(PointerShape::kHourglass);
  EXPECT_EQ(pointer.Shape(), PointerShape::kHourglass);
  pointer.SetShape(PointerShape::kDefault);
  EXPECT_THAT(told, ElementsAre(PointerShape::kHourglass, PointerShape::kDefault));
}

TEST(LinearCongruentialRandom, BeginsWithTheNumbersOfEveryStart) {
  LinearCongruentialRandom random;
  for (const float expected : {0.7055475F, 0.5334240F, 0.5795186F, 0.2895625F, 0.3019480F}) {
    EXPECT_NEAR(random.Next(), expected, 5e-8F);
  }
}

TEST(LinearCongruentialRandom, GoesOnFromAnyStart) {
  // From 0 the first number is the added constant.
  EXPECT_EQ(LinearCongruentialRandom(0).Next(), std::ldexp(12820163.0F, -24));
  LinearCongruentialRandom first;
  LinearCongruentialRandom second;
  for (int i = 0; i < 1000; ++i) {
    const float number = first.Next();
    EXPECT_EQ(number, second.Next());
    EXPECT_GE(number, 0.0F);
    EXPECT_LT(number, 1.0F);
  }
}

TEST(LinearCongruentialRandom, AgreesWithArithmeticThatCannotOverflow) {
  LinearCongruentialRandom random;
  unsigned long long x = LinearCongruentialRandom::kStart;
  for (int i = 0; i < 1000; ++i) {
    x = (x * 1140671485ULL + 12820163ULL) % (1ULL << 24U);
    EXPECT_EQ(random.Next(), std::ldexp(static_cast<float>(x), -24));
  }
}

}  // namespace
}  // namespace tessel::test
