#include <string>
#include <utility>
#include <vector>

#include "ControlsFixture.h"
#include "models/CommonDialog.h"
#include "support/FakeServices.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class CommonDialogTest : public ControlsTest {
 protected:
  auto Show(FakeFileDialogs::Answer answer) {
    services.fileDialogs.answers.push_back(std::move(answer));
    return dialog.Show(services.fileDialogs, services.files, {});
  }

  FakeServices services;
  CommonDialog dialog{controls, "cdlCon"};
};

TEST_F(CommonDialogTest, HoldsNothingAtFirst) {
  EXPECT_EQ(dialog.Held().fileName, "");
  EXPECT_EQ(dialog.Held().fileTitle, "");
}

TEST_F(CommonDialogTest, HoldsTheLastOfTheChosenFiles) {
  EXPECT_THAT(*Show({{"/games/a.con", "/games/b.con"}}),
              ElementsAre("/games/a.con", "/games/b.con"));
  EXPECT_EQ(dialog.Held().fileName, "/games/b.con");
  EXPECT_EQ(dialog.Held().fileTitle, "b.con");
}

TEST_F(CommonDialogTest, HoldsWhatItHeldWhenItIsCancelled) {
  Show({{"/games/a.con"}});
  EXPECT_EQ(Show(std::nullopt), std::nullopt);
  EXPECT_EQ(Show(std::vector<std::string>{}), std::nullopt);
  EXPECT_EQ(dialog.Held().fileName, "/games/a.con");
}

}  // namespace
}  // namespace tessel::test
