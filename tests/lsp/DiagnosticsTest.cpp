// What a check finds in the open documents and the files around them.
#include <gtest/gtest.h>

#include "TestClient.h"
#include "support/TempDirectory.h"

namespace tessel::lsp::test {
namespace {

class Diagnostics : public testing::Test {
 protected:
  Diagnostics() { client_.Initialize(); }

  std::string Write(const std::string& name, const std::string& bytes) {
    files_.Put(name, bytes);
    return Uri(name);
  }
  std::string Uri(const std::string& name) { return "file://" + files_ / name; }
  std::string After(const std::string& uri) {
    client_.Check();
    return client_.DiagnosticsOf(uri);
  }

  tessel::test::TempDirectory files_;
  TestClient client_;
};

TEST_F(Diagnostics, TellWhatIsWrongWithItsPlaceAndRule) {
  client_.Open(kUri, "define A 1\ndefine B\n/* open\n");
  EXPECT_EQ(After(kUri), "1:0-1:8 define-without-value\n2:0-2:2 open-comment\n");
}

TEST_F(Diagnostics, GoWithTheFault) {
  client_.Open(kUri, "define B\n");
  EXPECT_EQ(After(kUri), "0:0-0:8 define-without-value\n");
  client_.Rewrite(kUri, 2, "define B 1\n");
  EXPECT_EQ(After(kUri), "");
}

TEST_F(Diagnostics, HaveTheVersionOfTheText) {
  client_.Open(kUri, "define B\n", 41);
  client_.Check();
  EXPECT_EQ(client_.Received().back()["params"]["version"], 41);
}

TEST_F(Diagnostics, AreToldOnceAndNotAgain) {
  client_.Open(kUri, "define B\n");
  client_.Check();
  client_.Forget();
  client_.Check();
  EXPECT_TRUE(client_.Received().empty());
}

TEST_F(Diagnostics, AreToldAgainOfATextThatIsOpenedAgain) {
  client_.Open(kUri, "define B\n");
  client_.Check();
  client_.Notify("textDocument/didClose", {{"textDocument", {{"uri", kUri}}}});
  client_.Forget();
  client_.Open(kUri, "define B\n");
  EXPECT_EQ(After(kUri), "0:0-0:8 define-without-value\n");
}

TEST_F(Diagnostics, CountUnitsOfUtf16) {
  client_.Open(kUri,
               "define A 1 // \xE2\x82\xAC \xF0\x9F\x98\x80 x\n// \xF0\x9F\x98\x80 \xC5\x82\n");
  EXPECT_EQ(After(kUri),
            "0:16-0:18 not-in-windows-1252\n1:3-1:5 not-in-windows-1252\n"
            "1:6-1:7 not-in-windows-1252\n");
}

TEST_F(Diagnostics, SayNothingElseOfACharacterThatCannotBeSaved) {
  client_.Open(kUri, "state a\n  spr\xF0\x9F\x98\x80wn A\nends\n");
  EXPECT_EQ(After(kUri), "1:5-1:7 not-in-windows-1252\n");
  client_.Rewrite(kUri, 2, "state a\n  sprawn A\nends\n");
  EXPECT_EQ(After(kUri), "1:2-1:8 unknown-word\n");
}

TEST_F(Diagnostics, HaveNoQuestionMarkInThePlaceOfACharacter) {
  client_.Open(kUri, "// \xF0\x9F\x98\x80\n");
  client_.Check();
  const std::string message = client_.Received().back()["params"]["diagnostics"][0]["message"];
  EXPECT_EQ(message.find('?'), message.npos);
  EXPECT_NE(message.find("\xF0\x9F\x98\x80"), message.npos);
}

TEST_F(Diagnostics, LookForNamesInTheFilesOnTheDisk) {
  Write("DEFS.CON", "define BLOOD 1620\n");
  const std::string game = Write("GAME.CON", "");
  client_.Open(game, "include defs.con\nstate bleed\n  spawn BLOOD\n  spawn BLOD\nends\n");
  EXPECT_EQ(After(game), "3:8-3:12 undefined-name\n");
}

TEST_F(Diagnostics, PreferTheOpenTextToTheFile) {
  const std::string defs = Write("DEFS.CON", "define BLOOD 1620\n");
  const std::string game = Uri("GAME.CON");
  client_.Open(game, "include DEFS.CON\nstate bleed\n  spawn BLOOD\nends\n");
  client_.Open(defs, "define BLOD 1620\n");
  EXPECT_EQ(After(game), "2:8-2:13 undefined-name\n");
  client_.Notify("textDocument/didClose", {{"textDocument", {{"uri", defs}}}});
  EXPECT_EQ(After(game), "");
}

TEST_F(Diagnostics, SeeThatAFileHasChangedOnTheDisk) {
  Write("DEFS.CON", "define BLOD 1620\n");
  const std::string game = Uri("GAME.CON");
  client_.Open(game, "include DEFS.CON\nstate bleed\n  spawn BLOOD\nends\n");
  EXPECT_EQ(After(game), "2:8-2:13 undefined-name\n");
  Write("DEFS.CON", "define BLOOD 16201\n");
  EXPECT_EQ(After(game), "");
}

TEST_F(Diagnostics, AreAlsoToldOfFilesThatTheModHasOnTheDisk) {
  const std::string defs = Write("DEFS.CON", "define BLOOD\n");
  const std::string game = Uri("GAME.CON");
  client_.Open(game, "include DEFS.CON\n");
  EXPECT_EQ(After(defs), "0:0-0:12 define-without-value\n");
  client_.Notify("textDocument/didClose", {{"textDocument", {{"uri", game}}}});
  EXPECT_EQ(After(defs), "");
}

TEST_F(Diagnostics, KeepFilesApartThatNoIncludeTies) {
  const std::string user = Uri("USER.CON"), copy = Uri("USER-old.CON");
  client_.Open(user, "define A 1\n");
  client_.Open(copy, "define A 2\n");
  EXPECT_EQ(After(user), "");
  EXPECT_EQ(After(copy), "");
  client_.Open(Uri("GAME.CON"), "include USER.CON\ndefine A 2\n");
  EXPECT_EQ(After(Uri("GAME.CON")), "1:0-1:10 doubled-define\n");
  EXPECT_EQ(client_.DiagnosticsOf(copy), "");
}

TEST_F(Diagnostics, TellAFileOfTwoModsOnceWhatIsWrongInBoth) {
  const std::string defs = Uri("DEFS.CON");
  client_.Open(defs, "define A\n");
  client_.Open(Uri("GAME.CON"), "include DEFS.CON\n");
  client_.Open(Uri("GAME2.CON"), "include DEFS.CON\n");
  EXPECT_EQ(After(defs), "0:0-0:8 define-without-value\n");
}

TEST_F(Diagnostics, TakeFilesThatIncludeEachOther) {
  client_.Open(Uri("A.CON"), "include B.CON\ndefine A 1\n");
  client_.Open(Uri("B.CON"), "include A.CON\ndefine A 2\n");
  EXPECT_EQ(After(Uri("A.CON")) + After(Uri("B.CON")), "1:0-1:10 doubled-define\n");
}

TEST_F(Diagnostics, TakeTextsThatAreInNoFile) {
  client_.Open("untitled:Untitled-1", "define A\n");
  EXPECT_EQ(After("untitled:Untitled-1"), "0:0-0:8 define-without-value\n");
}

TEST_F(Diagnostics, OfATextThatHasChangedMeanwhileAreNotTold) {
  client_.Open(kUri, "define A\n");
  Session& session = client_.Peer().Current();
  const CheckJob job = session.NextCheck();
  client_.Rewrite(kUri, 2, "define A 1\n");
  session.Publish(job, job.Run(session.known.AsKnowledge()));
  EXPECT_EQ(client_.DiagnosticsOf(kUri), "untold");
  client_.Notify("textDocument/didClose", {{"textDocument", {{"uri", kUri}}}});
  session.Publish(job, job.Run(session.known.AsKnowledge()));
  EXPECT_EQ(client_.DiagnosticsOf(kUri), "untold");
}

}  // namespace
}  // namespace tessel::lsp::test
