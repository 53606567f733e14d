// Whatever bytes a file has, it comes through everything as it is.
#include <gtest/gtest.h>

#include "support/AnyText.h"
#include "support/RealWorld.h"

namespace tessel::test {
namespace {

TEST(AnyBytes, ComeThroughOpeningColouringChangingAndSavingAsTheyAre) {
  const TempDirectory directory;
  const std::string path = directory / "user.con";
  FakeServices fakes;
  PosixFiles files;
  ucTessel control({fakes.messages, fakes.fileDialogs, fakes.forms, fakes.clipboard, fakes.settings,
                    fakes.pointer, files, fakes.random, fakes.focus, fakes.loop, "/nowhere"},
                   {.dialogHoldsDocument = true});
  control.Initialize();
  HostedControls& c = control.Controls();
  c.tbToolBar.Press("Colorize");
  for (unsigned number = 1; number <= TextsToTry(); ++number) {
    const std::string bytes = AnyText(number);
    directory.Put("user.con", bytes);
    control.OpenFile(path);
    RichTextBox& editor = CurrentEditor(c);
    ASSERT_TRUE(editor.Text() == bytes) << "text " << number << " when it was opened";
    editor.SelectByHand(editor.Length(), 0);
    editor.Type("z");
    c.mnuRtbPopup.Choose("mnuRtbPopupFileSave");
    ASSERT_TRUE(BytesOf(path) == bytes + "z") << "text " << number << " when it was saved";
    editor.Undo();
    ASSERT_TRUE(editor.Text() == bytes) << "text " << number << " when the key was undone";
    c.mnuRtbPopup.Choose("mnuRtbPopupFileSave");
    c.tbToolBar.Press("FileClose");
    ASSERT_TRUE(fakes.messages.shown.empty())
        << "text " << number << " of " << bytes.size() << ": " << fakes.messages.shown[0].text;
  }
}

}  // namespace
}  // namespace tessel::test
