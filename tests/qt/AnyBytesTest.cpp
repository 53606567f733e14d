// Whatever bytes a text has, the widget shows each as a character and gives it back.
#include "qt/ScintillaViewFixture.h"
#include "support/AnyText.h"

namespace tessel {
namespace {

using ScintillaViewKeeps = ScintillaViewFixture;

TEST_F(ScintillaViewKeeps, AnyBytesThroughShowingAndTyping) {
  for (unsigned number = 1; number <= test::TextsToTry(); ++number) {
    const std::string bytes = test::AnyText(number);
    model.SetText(bytes);
    ASSERT_TRUE(Displayed() == bytes) << "text " << number << " when it was shown";
    const auto middle = static_cast<std::size_t>(number) % (bytes.size() + 1);
    Select(static_cast<Position>(middle), 0);
    Press(Qt::Key_Z, Qt::NoModifier, "z");
    // A line break of two bytes is not divided by a key.
    const auto at = static_cast<std::size_t>(model.SelStart()) - 1;
    ASSERT_TRUE(model.Text() == std::string(bytes).insert(at, "z")) << "text " << number;
    ASSERT_TRUE(Displayed() == model.Text()) << "text " << number << " when a key was typed";
  }
}

}  // namespace
}  // namespace tessel
