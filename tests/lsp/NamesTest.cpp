// Definition, references, symbols, hover, completion, rename.
#include <gtest/gtest.h>

#include <algorithm>

#include "TestClient.h"
#include "support/TempDirectory.h"

namespace tessel::lsp::test {
namespace {

const std::string kDefsText = "define BLOOD 1620\ndefine BONE 1625 // hard\n";
const std::string kGameText =
    "include DEFS.CON\n"
    "state bleed\n"
    "  ifrnd 64\n"
    "    spawn blood\n"
    "ends\n"
    "actor BONE 30\n"
    "  state bleed\n"
    "enda\n";

class Names : public testing::Test {
 protected:
  Names() {
    client_.Initialize(TestClient::FullCapabilities(), files_.Path());
    files_.Put("DEFS.CON", kDefsText);
    client_.Open(game_, kGameText, 3);
  }

  /// "GAME.CON 3:8-3:13", a line each.
  std::string Places(const Json& locations) {
    std::string text;
    for (const Json& location : locations) {
      const std::string uri = location["uri"];
      text +=
          uri.substr(uri.rfind('/') + 1) + " " + TestClient::ShownRange(location["range"]) + "\n";
    }
    return text;
  }
  std::string Definition(int line, int character) {
    return Places(client_.Ask("textDocument/definition", TestClient::At(game_, line, character)));
  }
  std::string References(int line, int character, bool declarations) {
    Json params = TestClient::At(game_, line, character);
    params["context"] = {{"includeDeclaration", declarations}};
    return Places(client_.Ask("textDocument/references", params));
  }
  std::string Hover(int line, int character) {
    const Json hover = client_.Ask("textDocument/hover", TestClient::At(game_, line, character));
    return hover.is_null() ? "nothing" : hover["contents"]["value"].get<std::string>();
  }
  std::string Completion(int line, int character) {
    const Json list =
        client_.Ask("textDocument/completion", TestClient::At(game_, line, character));
    if (list.is_null()) return "nothing";
    std::string text;
    for (const Json& item : list["items"]) text += item["label"].get<std::string>() + " ";
    return text;
  }
  Json Rename(int line, int character, const std::string& name) {
    Json params = TestClient::At(game_, line, character);
    params["newName"] = name;
    return client_.Answer("textDocument/rename", params);
  }
  std::string RenameProblem(int line, int character, const std::string& name) {
    const Json answer = Rename(line, character, name);
    return answer.contains("error") ? answer["error"]["message"].get<std::string>() : "none";
  }

  tessel::test::TempDirectory files_;
  const std::string game_ = "file://" + files_ / "GAME.CON";
  TestClient client_;
};

TEST_F(Names, AreFoundInTheFileThatDefinesThem) {
  EXPECT_EQ(Definition(3, 12), "DEFS.CON 0:7-0:12\n");
  EXPECT_EQ(Definition(6, 9), "GAME.CON 1:6-1:11\n");
}

TEST_F(Names, HaveNoDefinitionAmongKeywordsAndComments) {
  EXPECT_EQ(client_.Ask("textDocument/definition", TestClient::At(game_, 1, 2)), Json());
}

TEST_F(Names, OfOneKindAreNotThoseOfAnother) {
  client_.Rewrite(game_, 4, "action bleed 0 1\nstate bleed\nends\nactor A 1\n state bleed\nenda\n");
  EXPECT_EQ(Definition(4, 8), "GAME.CON 1:6-1:11\n");
}

TEST_F(Names, AreListedWhereverTheyAreUsed) {
  EXPECT_EQ(References(3, 11, false), "GAME.CON 3:10-3:15\n");
  EXPECT_EQ(References(3, 10, true), "GAME.CON 3:10-3:15\nDEFS.CON 0:7-0:12\n");
  EXPECT_EQ(References(1, 6, true), "GAME.CON 1:6-1:11\nGAME.CON 6:8-6:13\n");
}

TEST_F(Names, AreHighlightedInTheDocument) {
  const Json found = client_.Ask("textDocument/documentHighlight", TestClient::At(game_, 1, 6));
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0]["kind"], 3);
  EXPECT_EQ(found[1]["kind"], 2);
}

TEST_F(Names, AreListedAsSymbols) {
  const Json symbols =
      client_.Ask("textDocument/documentSymbol", {{"textDocument", {{"uri", game_}}}});
  ASSERT_EQ(symbols.size(), 2U);
  EXPECT_EQ(symbols[0]["name"], "bleed");
  EXPECT_EQ(symbols[0]["kind"], 12);
  EXPECT_EQ(TestClient::ShownRange(symbols[0]["range"]), "1:0-4:4");
  EXPECT_EQ(TestClient::ShownRange(symbols[0]["selectionRange"]), "1:6-1:11");
  EXPECT_EQ(symbols[1]["name"], "BONE");
  EXPECT_EQ(symbols[1]["detail"], "30");
}

TEST_F(Names, AreListedAsSymbolsOfTheWorkspace) {
  EXPECT_EQ(Places([&] {
              Json locations = Json::array();
              for (const Json& each : client_.Ask("workspace/symbol", {{"query", "bo"}})) {
                locations.push_back(each["location"]);
              }
              return locations;
            }()),
            "GAME.CON 5:6-5:10\nDEFS.CON 1:7-1:11\n");
  EXPECT_EQ(client_.Ask("workspace/symbol", {{"query", "\xF0\x9F\x98\x80"}}), Json::array());
}

TEST_F(Names, AreExplained) {
  EXPECT_EQ(Hover(3, 12), "define BLOOD 1620\n  DEFS.CON, line 1");
  EXPECT_EQ(Hover(6, 9), "state bleed\n  GAME.CON, line 2");
  EXPECT_EQ(Hover(3, 1), "nothing");
}

TEST_F(Names, OfThePanelAreExplainedAsItsItems) {
  client_.Rewrite(game_, 4, "define TROOPSTRENGTH 30\n");
  EXPECT_EQ(Hover(0, 9),
            "define TROOPSTRENGTH 30\n  GAME.CON, line 1\nsettings panel: Enemy, Trooper");
}

TEST_F(Names, OfCommandsAreExplainedByTheirParameters) {
  EXPECT_EQ(Hover(2, 4).substr(0, 6), "ifrnd ");
  EXPECT_NE(Hover(2, 4).find('['), std::string::npos);
}

TEST_F(Names, CompleteWhatIsTyped) {
  client_.Rewrite(game_, 4, "include DEFS.CON\nstate bl\nends\nstate black\nends\n");
  EXPECT_EQ(Completion(1, 8), "black BLOOD ");
  client_.Rewrite(game_, 5, "include DEFS.CON\n// bl\n");
  EXPECT_EQ(Completion(1, 5), "nothing");
}

TEST_F(Names, CompleteWithTheRangeThatWasTyped) {
  client_.Rewrite(game_, 4, "include DEFS.CON\n spawn blo\n");
  const Json list = client_.Ask("textDocument/completion", TestClient::At(game_, 1, 10));
  ASSERT_EQ(list["items"].size(), 1U);
  EXPECT_EQ(TestClient::ShownRange(list["items"][0]["textEdit"]["range"]), "1:7-1:10");
  EXPECT_EQ(list["items"][0]["textEdit"]["newText"], "BLOOD");
  EXPECT_EQ(list["isIncomplete"], false);
}

TEST_F(Names, OfCommandsCompleteWithTheirParameters) {
  client_.Rewrite(game_, 4, "state a\n  spaw\nends\n");
  const Json list = client_.Ask("textDocument/completion", TestClient::At(game_, 1, 6));
  ASSERT_FALSE(list["items"].empty());
  EXPECT_EQ(list["items"][0]["label"], "spawn");
  EXPECT_NE(list["items"][0]["detail"].get<std::string>().find('['), std::string::npos);
}

TEST_F(Names, AreChangedInAllFilesOfTheMod) {
  const Json edit = Rename(3, 12, "GORE")["result"];
  ASSERT_EQ(edit["documentChanges"].size(), 2U);
  EXPECT_EQ(edit["documentChanges"][0]["textDocument"]["uri"], game_);
  EXPECT_EQ(edit["documentChanges"][0]["textDocument"]["version"], 3);
  EXPECT_EQ(TestClient::ShownRange(edit["documentChanges"][0]["edits"][0]["range"]), "3:10-3:15");
  EXPECT_EQ(edit["documentChanges"][0]["edits"][0]["newText"], "GORE");
  EXPECT_EQ(edit["documentChanges"][1]["textDocument"]["version"], Json());
  EXPECT_EQ(TestClient::ShownRange(edit["documentChanges"][1]["edits"][0]["range"]), "0:7-0:12");
}

TEST_F(Names, MayChangeTheirCase) { EXPECT_EQ(RenameProblem(3, 12, "Blood"), "none"); }

TEST_F(Names, AreNotChangedIntoWhatIsNoName) {
  EXPECT_EQ(RenameProblem(3, 12, "BONE"), "\"BONE\" is a name already: GAME.CON has it.");
  EXPECT_EQ(RenameProblem(3, 12, "spawn"), "\"spawn\" is a script word.");
  EXPECT_EQ(RenameProblem(3, 12, "state"), "\"state\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, "A B"), "\"A B\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, "A//B"), "\"A//B\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, "A{"), "\"A{\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, ""), "\"\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, "12"), "\"12\" cannot be a name.");
  EXPECT_EQ(RenameProblem(3, 12, "\xC5\x82"),
            "\"\xC5\x82\" has a character that a CON file cannot hold.");
  EXPECT_EQ(RenameProblem(3, 6, "A"), "\"spawn\" is defined nowhere.");
  EXPECT_EQ(RenameProblem(1, 2, "A"), "There is no name at this place.");
}

TEST_F(Names, AreOfferedToBeChangedWhereTheyAreDefined) {
  EXPECT_EQ(client_.Ask("textDocument/prepareRename", TestClient::At(game_, 3, 12))["placeholder"],
            "blood");
  EXPECT_EQ(client_.Ask("textDocument/prepareRename", TestClient::At(game_, 2, 4)), Json());
}

TEST_F(Names, WithACharacterThatCannotBeSavedAreNone) {
  client_.Rewrite(game_, 4, "define A\xF0\x9F\x98\x80 1\ndefine A\xC5\x82 2\n");
  EXPECT_EQ(Hover(0, 8), "nothing");
  EXPECT_EQ(client_.Ask("textDocument/definition", TestClient::At(game_, 0, 8)), Json());
  EXPECT_EQ(RenameProblem(0, 8, "B"), "There is no name at this place.");
}

TEST(NamesInUtf8, ArePlacedByBytes) {
  TestClient client;
  client.Initialize({{"general", {{"positionEncodings", {"utf-8"}}}}});
  const std::string uri = "file:///mod/A.CON";
  client.Open(uri, "/* \xE2\x82\xAC\xF0\x9F\x98\x80 */ define A 1\n");
  const Json symbols =
      client.Ask("textDocument/documentSymbol", {{"textDocument", {{"uri", uri}}}});
  EXPECT_EQ(TestClient::ShownRange(symbols[0]["selectionRange"]), "0:21-0:22");
  EXPECT_FALSE(client.Ask("textDocument/hover", TestClient::At(uri, 0, 21)).is_null());
}

}  // namespace
}  // namespace tessel::lsp::test
