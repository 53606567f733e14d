// What the program's style changes about the toolkit's.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>

#include "qt/looks/TesselStyle.h"

namespace tessel::test {
namespace {

/// As on desktops whose dialogs have pictures.
class WithPictures : public QProxyStyle {
 public:
  WithPictures() : QProxyStyle("Fusion") {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 1;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }
};

bool HasPicture(QStyle& style) {
  QDialogButtonBox buttons;
  buttons.setStyle(&style);
  return !buttons.addButton(QDialogButtonBox::Close)->icon().isNull();
}

TEST(TesselStyle, ButtonsOfDialogsHaveNoPictures) {
  WithPictures desktop;
  ASSERT_TRUE(HasPicture(desktop));
  TesselStyle style;
  style.setBaseStyle(new WithPictures);
  EXPECT_FALSE(HasPicture(style));
}

}  // namespace
}  // namespace tessel::test
