// What the program's style changes about the toolkit's.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>

#include "platform/qt/TesselStyle.h"

namespace tessel::test {
namespace {

TEST(TesselStyle, ButtonsOfDialogsHaveNoPictures) {
  QDialogButtonBox buttons;
  TesselStyle style;
  buttons.setStyle(&style);
  buttons.setStandardButtons(QDialogButtonBox::Close | QDialogButtonBox::Yes);
  for (const QAbstractButton* button : buttons.buttons()) EXPECT_TRUE(button->icon().isNull());
}

}  // namespace
}  // namespace tessel::test
