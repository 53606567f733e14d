// The box around the selection.
#include <QApplication>
#include <string>

#include "ScintillaViewFixture.h"

namespace tessel {
namespace {

class Outline : public ScintillaViewFixture {
 protected:
  void SetUp() override {
    model.SetText("// a heading\r\nsecond \xE9 line");
    Select(5, 7);
    QApplication::processEvents();
  }
  /// In the document's own bytes: the text has one character of two.
  std::string Boxed() {
    view.grab();
    const SciRange shown = view.Outline().Shown();
    return std::string(model.Bytes())
        .substr(static_cast<std::size_t>(shown.start),
                static_cast<std::size_t>(shown.end - shown.start));
  }
};

TEST_F(Outline, StandsAroundTheSelectionWhileItIsWanted) {
  EXPECT_EQ(Boxed(), "");
  view.OutlineSelection(true);
  EXPECT_EQ(Boxed(), "heading");
  view.OutlineSelection(false);
  EXPECT_EQ(Boxed(), "");
}

TEST_F(Outline, FollowsTheSelectionAndTheText) {
  view.OutlineSelection(true);
  Select(0, 2);
  EXPECT_EQ(Boxed(), "//");
  model.SetSelText("##");
  EXPECT_EQ(Boxed(), "");
  model.SelectByHand(0, 4);
  EXPECT_EQ(Boxed(), "## a");
  model.SetText("new");
  EXPECT_EQ(Boxed(), "");
}

TEST_F(Outline, ChangesNeitherTextNorSelection) {
  const std::string before = model.Text();
  view.OutlineSelection(true);
  Boxed();
  EXPECT_EQ(model.Text(), before);
  EXPECT_EQ(Selected(), std::make_pair(Position{5}, Position{7}));
  EXPECT_FALSE(model.CanUndo());
}

TEST_F(Outline, IsDrawnAlsoWhereTheSelectionIsHidden) {
  model.SetHideSelection(true);
  view.clearFocus();
  const QImage without = view.grab().toImage();
  view.OutlineSelection(true);
  EXPECT_NE(view.grab().toImage(), without);
}

TEST_F(Outline, SettlesAfterOnePainting) {
  view.OutlineSelection(true);
  Boxed();
  QApplication::processEvents();
  int updates = 0;
  QObject::connect(&view, &QsciScintillaBase::SCN_UPDATEUI, &view, [&] { ++updates; });
  for (int i = 0; i < 3; ++i) Boxed();
  EXPECT_LE(updates, 1);
}

}  // namespace
}  // namespace tessel
