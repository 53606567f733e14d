// What can be clicked or holds something has an edge that can be seen, on light and dark.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <memory>

#include "qt/looks/Contrast.h"
#include "qt/looks/TesselStyle.h"
#include "qt/looks/Theme.h"

namespace tessel::test {
namespace {

class Edges : public testing::TestWithParam<Brightness> {
 protected:
  QPalette Colours() const { return PaletteOf(GetParam()); }

  /// The widget as it is painted without the focus.
  QImage Painted(QWidget& widget, QSize size) {
    widget.setStyle(&style_);
    for (auto* part : widget.findChildren<QWidget*>()) part->setStyle(&style_);
    widget.setPalette(Colours());
    widget.resize(size);
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.show();
    widget.clearFocus();
    return widget.grab().toImage();
  }

  TesselStyle style_;
};

TEST_P(Edges, ContrastWithAllThatTheyBorderOn) {
  const Theme theme(Colours());
  for (const QColor& neighbour :
       {Colours().color(QPalette::Window), Colours().color(QPalette::Base),
        Colours().color(QPalette::AlternateBase), Colours().color(QPalette::Button),
        theme.Page()}) {
    EXPECT_GE(ContrastOf(theme.Outline(), neighbour), kSeenContrast)
        << qPrintable(neighbour.name());
    EXPECT_GE(ContrastOf(theme.Accent(), neighbour), kSeenContrast) << qPrintable(neighbour.name());
  }
}

TEST_P(Edges, ArePaintedAroundBoxesListsAndMenus) {
  const auto combo = [](bool editable) {
    auto box = std::make_unique<QComboBox>();
    box->setEditable(editable);
    return box;
  };
  std::vector<std::unique_ptr<QWidget>> widgets;
  widgets.push_back(std::make_unique<QLineEdit>());
  widgets.push_back(std::make_unique<QSpinBox>());
  widgets.push_back(combo(false));
  widgets.push_back(combo(true));
  widgets.push_back(std::make_unique<QListWidget>());
  widgets.push_back(std::make_unique<QPlainTextEdit>());
  widgets.push_back(std::make_unique<QPushButton>());
  widgets.push_back(std::make_unique<QGroupBox>());
  auto menu = std::make_unique<QMenu>();
  menu->addAction("Cut");
  widgets.push_back(std::move(menu));
  for (const auto& widget : widgets) {
    const QImage image = Painted(*widget, {120, 60});
    const int middle = image.height() / 2;
    const QColor edge = image.pixelColor(0, middle);
    const QColor inside = image.pixelColor(3, middle);
    EXPECT_GE(ContrastOf(edge, inside), kSeenContrast)
        << widget->metaObject()->className() << " " << qPrintable(edge.name());
    EXPECT_GE(ContrastOf(edge, Theme(Colours()).Page()), kSeenContrast)
        << widget->metaObject()->className();
  }
}

INSTANTIATE_TEST_SUITE_P(OnLightAndDark, Edges,
                         testing::Values(Brightness::kLight, Brightness::kDark),
                         [](const auto& brightness) {
                           return brightness.param == Brightness::kDark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace tessel::test
