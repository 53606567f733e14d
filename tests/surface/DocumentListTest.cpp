// What listeners are told of the documents, and what a host may answer.
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "documents/DocumentHost.h"
#include "support/TesselTest.h"
#include "surface/DocumentList.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what it is told: the event, the slot, and the document's text at that moment.
class Listener {
 public:
  explicit Listener(DocumentList& list) : list_(list) {
    const auto note = [this](const char* what) {
      return [this, what](const tessel::Document& document) {
        heard_.push_back(std::string(what) + " " + Said(document));
      };
    };
    subscriptions_ = {
        list.Loaded.Connect(note("loaded")), list.AboutToDrop.Connect(note("drops")),
        list.Saved.Connect(note("saved")), list.Shown.Connect(note("shown")),
        list.Moved.Connect([this](Slot from, Slot to) {
          heard_.push_back("moved " + std::to_string(Index(from)) + " to " + Said(list_.At(to)));
        })};
  }

  std::vector<std::string> Take() { return std::exchange(heard_, {}); }

 private:
  static std::string Said(const tessel::Document& document) {
    return std::to_string(Index(document.Place())) + " \"" + document.Editor().Text() + "\"";
  }

  DocumentList& list_;
  std::vector<std::string> heard_;
  std::vector<Subscription> subscriptions_;
};

class DocumentEvents : public TesselTest {
 protected:
  Listener listener_{List()};
};

TEST_F(DocumentEvents, TellOfAnOpenedFileWhenAllOfItIsThere) {
  std::vector<std::string> paths;
  const Subscription watch = List().Loaded.Connect([&](const tessel::Document& document) {
    paths.push_back(document.Path());
    EXPECT_FALSE(document.Modified());
    EXPECT_TRUE(document.InFront());
  });
  Open("/A.con", "A");
  EXPECT_THAT(listener_.Take(), ElementsAre("drops 0 \"\"", "shown 0 \"A\"", "loaded 0 \"A\""));
  EXPECT_EQ(List().Current().Name(), "a.con");
  EXPECT_EQ(List().Current().Mode(), ColourMode::kColoured);
  Open("/b.con", "B");
  EXPECT_THAT(listener_.Take(), ElementsAre("shown 1 \"B\"", "loaded 1 \"B\""));
  EXPECT_THAT(paths, ElementsAre("/A.con", "/b.con"));
}

TEST_F(DocumentEvents, WarnBeforeATextOfTheStartTabIsLoadedOver) {
  Editor(0).Type("typed");
  listener_.Take();
  Open("/a.con", "A");
  EXPECT_EQ(listener_.Take().front(), "drops 0 \"typed\"");
}

TEST_F(DocumentEvents, FollowTheDocumentsThatMoveUp) {
  for (const char* name : {"/a.con", "/b.con", "/c.con"}) Open(name, std::string(1, name[1]));
  C().tbsRtb.Press(1);
  listener_.Take();
  C().tbToolBar.Press("FileClose");
  EXPECT_THAT(listener_.Take(), ElementsAre("drops 0 \"a\"", "moved 1 to 0 \"b\"",
                                            "moved 2 to 1 \"c\"", "shown 0 \"b\""));
  EXPECT_EQ(List().At(Slot{1}).Path(), "/c.con");
}

TEST_F(DocumentEvents, TellOfTheLastDocumentThatIsClosed) {
  Open("/a.con", "A");
  listener_.Take();
  C().tbToolBar.Press("FileClose");
  EXPECT_THAT(listener_.Take(), ElementsAre("drops 0 \"A\""));
  EXPECT_TRUE(List().Current().IsFree());
}

TEST_F(DocumentEvents, TellOfASaveAndOfNoCancelledOne) {
  Open("/a.con", "A");
  listener_.Take();
  C().tbToolBar.Press("FileSave");
  EXPECT_THAT(listener_.Take(), IsEmpty());
  world_.fileDialogs.answers = {{{"/b.con"}}};
  C().tbToolBar.Press("FileSave");
  EXPECT_THAT(listener_.Take(), ElementsAre("saved 0 \"A\""));
  EXPECT_EQ(List().Current().Path(), "/b.con");
}

TEST_F(DocumentEvents, TellOfATextThatIsTakenFromItsFileAgain) {
  Open("/a.con", "A");
  Editor(0).Type("my ");
  listener_.Take();
  world_.files.files["/a.con"] = "new";
  Control().ReloadDocument();
  EXPECT_THAT(listener_.Take(), ElementsAre("drops 0 \"my A\"", "loaded 0 \"new\""));
}

TEST_F(DocumentEvents, TellOfEveryChangeAfterTheDocumentIsMarked) {
  Open("/a.con", "A");
  int changes = 0;
  const Subscription watch = List().Changed.Connect([&](const tessel::Document& document) {
    EXPECT_TRUE(document.Modified());
    ++changes;
  });
  Editor(0).Type("x");
  Editor(0).Type("y");
  EXPECT_EQ(changes, 2);
}

TEST_F(DocumentEvents, TellOfAConvertedDocumentAsChanged) {
  Open("/a.con",
       "definelevelname 0 0 A.map 01:00 02:00 ONE\r\n"
       "gamestartup FREEZERHURTOWNER\r\n");
  bool marked = false;
  const Subscription watch = List().Changed.Connect(
      [&](const tessel::Document& document) { marked = marked || document.Modified(); });
  Control().Convert();
  EXPECT_TRUE(marked);
}

TEST_F(DocumentEvents, AMiddleTabStaysWhatItIsWhenTheStartTabIsTaken) {
  for (const char* name : {"/a.con", "/b.con"}) Open(name, name);
  C().tbsRtb.SetTabTag(1, "");
  EXPECT_EQ(List().WithPath("/b.con")->Place(), Slot{1});
  EXPECT_FALSE(List().WithPath("/a.con"));
}

class ADocument : public TesselTest {};

TEST_F(ADocument, WithoutAFileHasNoPath) {
  EXPECT_TRUE(List().Current().IsFree());
  EXPECT_EQ(List().Current().Path(), "");
  Control().ShowAsUntitled("text");
  EXPECT_TRUE(List().Current().IsUntitled());
  EXPECT_EQ(List().Current().Path(), "");
  EXPECT_EQ(List().Current().Name(), "Untitled");
  EXPECT_TRUE(List().Current().Modified());
}

TEST_F(ADocument, ShownAsUntitledTakesTheStartTabOnlyWhileThatIsEmpty) {
  Editor(0).Type("typed");
  Control().ShowAsUntitled("text");
  ASSERT_EQ(List().Count(), 2);
  EXPECT_EQ(Editor(0).Text(), "typed");
  EXPECT_EQ(Current().Text(), "text");
}

/// Answers as it is told to, and writes down what it was asked.
class AnsweringHost : public DocumentHost {
 public:
  bool answer = true;
  std::vector<std::string> asked;

  std::optional<std::string> otherSpelling;

  std::optional<std::string> BeforeOpening(const std::string& path) override {
    asked.push_back("open " + path);
    if (!answer) return std::nullopt;
    return otherSpelling.value_or(path);
  }
  bool BeforeSaving(const tessel::Document& document, const std::string& path) override {
    asked.push_back("save " + document.Path() + " to " + path);
    return answer;
  }
};

class Host : public testing::Test {
 protected:
  Host() {
    world_.files.files["/a.con"] = "A";
    control_.Initialize();
  }
  HostedControls& C() { return control_.Controls(); }

  FakeServices world_;
  AnsweringHost host_;
  ucTessel control_{world_.Get(), {.host = &host_}};
};

TEST_F(Host, IsAskedBeforeAFileIsOpened) {
  control_.OpenFile("/a.con");
  EXPECT_THAT(host_.asked, ElementsAre("open /a.con"));
  EXPECT_EQ(control_.OpenDocuments().Current().Path(), "/a.con");
}

TEST_F(Host, KeepsAFileFromBeingOpened) {
  host_.answer = false;
  control_.OpenFile("/a.con");
  EXPECT_TRUE(control_.OpenDocuments().Current().IsFree());
  EXPECT_THAT(world_.messages.shown, IsEmpty());
}

TEST_F(Host, GivesAFileAnotherSpelling) {
  host_.otherSpelling = "/a.con";
  control_.OpenFile("/A.CON");
  EXPECT_EQ(control_.OpenDocuments().Current().Path(), "/a.con");
}

TEST_F(Host, IsAskedForEachFileOfADialogButNotForTheDialog) {
  world_.files.files["/b.con"] = "B";
  world_.fileDialogs.answers = {{{"/a.con", "/b.con"}}};
  control_.OpenFile("");
  EXPECT_THAT(host_.asked, ElementsAre("open /a.con", "open /b.con"));
}

TEST_F(Host, KeepsADocumentFromBeingSaved) {
  control_.OpenFile("/a.con");
  control_.OpenDocuments().CurrentEditor().Type("x");
  C().dlgCommon.SetHeld({"/held.con", "held.con"});
  host_.answer = false;
  world_.fileDialogs.answers = {{{"/b.con"}}};
  C().mnuRtbPopup.Choose("mnuRtbPopupFileSave");
  C().tbToolBar.Press("FileSave");
  EXPECT_THAT(host_.asked,
              ElementsAre("open /a.con", "save /a.con to /a.con", "save /a.con to /b.con"));
  EXPECT_EQ(world_.files.files.at("/a.con"), "A");
  EXPECT_FALSE(world_.files.files.contains("/b.con"));
  EXPECT_TRUE(control_.OpenDocuments().Current().Modified());
  EXPECT_EQ(control_.OpenDocuments().Current().Path(), "/a.con");
  EXPECT_EQ(C().dlgCommon.Held().fileName, "/held.con");
}

}  // namespace
}  // namespace tessel::test
