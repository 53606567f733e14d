// What the program's style changes about the toolkit's.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyleFactory>
#include <memory>

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

QImage Drawing(const QStyle& style, QStyle::StandardPixmap icon) {
  return style.standardIcon(icon, nullptr, nullptr).pixmap(48, 48).toImage();
}

TEST(TesselStyle, DrawsTheIconsOfBoxesInTheProgramsOwnWay) {
  const TesselStyle style;
  const std::unique_ptr<QStyle> toolkit(QStyleFactory::create("Fusion"));
  for (const auto icon : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
                          QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxQuestion}) {
    const QImage drawn = Drawing(style, icon);
    EXPECT_NE(drawn, Drawing(*toolkit, icon)) << icon;
    EXPECT_GT(qAlpha(drawn.pixel(24, 24)), 0) << icon;
  }
}

TEST(TesselStyle, WritesDisabledItemsOfMenusWithoutAShadow) {
  EXPECT_EQ(TesselStyle().styleHint(QStyle::SH_EtchDisabledText, nullptr, nullptr, nullptr), 0);
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
