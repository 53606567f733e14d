// Fixes, values and the conversion, as edits that the client makes.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "TestClient.h"
#include "check/Check.h"
#include "cli/look/Conversion.h"
#include "text/LineEnds.h"
#include "text/SafeText.h"

namespace tessel::lsp::test {
namespace {

class Actions : public testing::Test {
 protected:
  Actions() { client_.Initialize(); }

  void Open(const std::string& utf8) {
    text_ = utf8;
    client_.Open(kUri, utf8, ++version_);
  }
  Json At(int line, Json only = nullptr) {
    Json params = {{"textDocument", {{"uri", kUri}}},
                   {"range", TestClient::Span(line, 0, 200)},
                   {"context", {{"diagnostics", Json::array()}}}};
    if (!only.is_null()) params["context"]["only"] = std::move(only);
    return client_.Ask("textDocument/codeAction", params);
  }
  std::string Titles(const Json& actions) {
    std::string titles;
    for (const Json& action : actions) titles += action["title"].get<std::string>() + "\n";
    return titles;
  }
  Json Action(int line, const std::string& title) {
    for (const Json& action : At(line)) {
      if (action["title"] == title) return action;
    }
    ADD_FAILURE() << "no action " << title << " among\n" << Titles(At(line));
    return {};
  }

  /// The text with the edits made, in ASCII, where a place is a byte.
  std::string With(const Json& edit) {
    std::string text = text_;
    std::vector<std::tuple<std::size_t, std::size_t, std::string>> edits;
    for (const Json& each : edit["documentChanges"][0]["edits"]) {
      edits.emplace_back(OffsetOf(each["range"]["start"]), OffsetOf(each["range"]["end"]),
                         each["newText"]);
    }
    std::ranges::sort(edits, std::greater());
    for (const auto& [begin, end, fresh] : edits) text.replace(begin, end - begin, fresh);
    return text;
  }
  std::size_t OffsetOf(const Json& place) {
    std::size_t at = 0;
    for (int line = place["line"]; line > 0; --line) at = text_.find('\n', at) + 1;
    return at + place["character"].get<std::size_t>();
  }
  /// The edit that the server asks the client to apply.
  Json Applied() {
    for (const Json& message : client_.Received()) {
      if (message.value("method", "") == "workspace/applyEdit") return message["params"]["edit"];
    }
    return {};
  }
  std::string Run(const char* command, Json arguments) {
    client_.Forget();
    const Json answer = client_.Answer("workspace/executeCommand",
                                       {{"command", command}, {"arguments", arguments}});
    return answer.contains("error") ? answer["error"]["message"].get<std::string>() : "done";
  }

  TestClient client_;
  std::string text_;
  int version_ = 0;
};

TEST_F(Actions, CloseAComment) {
  Open("/* open\ndefine A 1\n");
  EXPECT_EQ(With(Action(0, "Close the comment (open-comment)")["edit"]),
            "/* open */\ndefine A 1\n");
}

TEST_F(Actions, TakeADoubledLineOut) {
  Open("define A 1\ndefine A 1\ndefine B 2\n");
  const Json action = At(1)[0];
  EXPECT_EQ(action["kind"], "quickfix");
  EXPECT_EQ(action["diagnostics"][0]["code"], "doubled-define");
  EXPECT_EQ(With(action["edit"]), "define A 1\ndefine B 2\n");
  EXPECT_EQ(Titles(At(2, {"quickfix"})), "");
}

TEST_F(Actions, InsertTheMissingItemOfThePanel) {
  std::string user = ToUtf8(TestResources().newerTemplate);
  const auto line = user.find("define TROOPSTRENGTH");
  user.erase(line, user.find('\n', line) + 1 - line);
  Open(user);
  const auto list =
      std::count(user.begin(),
                 user.begin() + static_cast<std::ptrdiff_t>(user.find("\ngamestartup") + 1), '\n');
  const Json fixes = At(static_cast<int>(list), {"quickfix"});
  ASSERT_EQ(Titles(fixes), "Insert the line of the template (panel-missing)\n");
  client_.Rewrite(kUri, ++version_, With(fixes[0]["edit"]));
  client_.Check();
  EXPECT_EQ(client_.DiagnosticsOf(kUri), "");
}

TEST_F(Actions, AreThoseOfTheKindsThatTheClientWants) {
  Open("/* open */ define TROOPSTRENGTH 30 /*\n");
  EXPECT_EQ(Titles(At(0, {"quickfix"})), "Close the comment (open-comment)\n");
  EXPECT_EQ(Titles(At(0, {"source"})), "");
  EXPECT_NE(Titles(At(0, {"refactor"})).find("Set value"), std::string::npos);
}

TEST_F(Actions, OfferTheValueOfTheTemplateAndTheNearestOfThePanel) {
  Open("define TROOPSTRENGTH 55\n");
  EXPECT_EQ(Titles(At(0)),
            "Set value of TROOPSTRENGTH to 30 (as in the template)\n"
            "Set value of TROOPSTRENGTH to 50\n"
            "Set value of TROOPSTRENGTH to 75\n");
  EXPECT_EQ(With(Action(0, "Set value of TROOPSTRENGTH to 75")["edit"]),
            "define TROOPSTRENGTH 75\n");
}

TEST_F(Actions, OfferTheOtherAnswer) {
  Open("define CAMERASDESTRUCTABLE YES // always\n");
  EXPECT_EQ(With(Action(0, "Set value of CAMERASDESTRUCTABLE to NO (as in the template)")["edit"]),
            "define CAMERASDESTRUCTABLE NO // always\n");
}

TEST_F(Actions, OfferNoValueForWhatIsNotWhole) {
  Open("define A\ndefine A 1 2\ndefine B \xF0\x9F\x98\x80\n// define C 1\n");
  for (const int line : {0, 1, 2, 3}) EXPECT_EQ(Titles(At(line, {"refactor"})), "") << line;
}

TEST_F(Actions, SetAnyValueThatTheItemTakes) {
  Open("define TROOPSTRENGTH 30\ndefine PIGCOPSTRENGTH 100\n");
  EXPECT_EQ(Run("tessel.setValue", {kUri, "Trooper", "45"}), "done");
  EXPECT_EQ(With(Applied()), "define TROOPSTRENGTH 45\ndefine PIGCOPSTRENGTH 100\n");
  EXPECT_EQ(Run("tessel.setValue", {kUri, "PIGCOPSTRENGTH", "90", 2}), "done");
  EXPECT_EQ(With(Applied()), "define TROOPSTRENGTH 30\ndefine PIGCOPSTRENGTH 90\n");
}

TEST_F(Actions, RefuseWhatTheItemDoesNotTake) {
  Open("define TROOPSTRENGTH 30\n");
  EXPECT_EQ(Run("tessel.setValue", {kUri, "Trooper", "lots"}),
            "\"lots\" cannot be the value of Trooper: it takes a whole number from -2147483648 to "
            "2147483647.");
  EXPECT_EQ(Run("tessel.setValue", {kUri, "Trooper"}), "Argument 3 has to be a value, as a text.");
  EXPECT_EQ(Run("tessel.setValue", {"file:///x", "Trooper", "1"}),
            "No such document is open: file:///x");
  EXPECT_EQ(Run("tessel.nothing", Json::array()), "There is no command \"tessel.nothing\".");
  EXPECT_EQ(Run("tessel.setValue", {kUri, "Nobody", "1"}).substr(0, 29),
            "There is no setting \"Nobody\",");
  EXPECT_EQ(Applied(), Json());
}

TEST_F(Actions, ConvertAUserFile) {
  const std::string user = TestResources().olderTemplate;
  Open(ToUtf8(user));
  const Json action = Action(0, "Convert to 1.4/1.5");
  EXPECT_EQ(Run("tessel.convert", action["command"]["arguments"]), "done");
  EXPECT_EQ(With(Applied()), ToUtf8(cli::ConvertText(user).text));
}

TEST_F(Actions, ConvertWithTheLineEndsOfTheText) {
  const std::string user = WithLineEnds(TestResources().olderTemplate, LineEnd::kLf);
  Open(ToUtf8(user));
  EXPECT_EQ(Run("tessel.convert", {kUri}), "done");
  EXPECT_EQ(With(Applied()), ToUtf8(WithLineEnds(cli::ConvertText(user).text, LineEnd::kLf)));
}

TEST_F(Actions, RefuseToConvertWhatTheControlDoesNotConvert) {
  Open("define A 1\n");
  EXPECT_EQ(Titles(At(0, {"refactor"})).find("Convert"), std::string::npos);
  EXPECT_EQ(Run("tessel.convert", {kUri}), "This does not appear to be a user.con file.");
  Open("define QSIZE 1\ndefinelevelname 0 0 A.map 1:00 1:00 A\n");
  EXPECT_EQ(Run("tessel.convert", {kUri}),
            "This con appears to already be version 1.4/1.5 compatible.");
  Open("// \xF0\x9F\x98\x80\ndefinelevelname 0 0 A.map 1:00 1:00 A\n");
  EXPECT_EQ(Run("tessel.convert", {kUri}), "The text has characters that a CON file cannot hold.");
}

TEST(ActionsOfSmallClients, AreEditsByUri) {
  TestClient client;
  client.Initialize(Json::object());
  client.Open(kUri, "define TROOPSTRENGTH 55\n");
  const Json actions =
      client.Ask("textDocument/codeAction", {{"textDocument", {{"uri", kUri}}},
                                             {"range", TestClient::Span(0, 0, 0)},
                                             {"context", {{"diagnostics", Json::array()}}}});
  EXPECT_EQ(actions[0]["edit"]["changes"][kUri][0]["newText"], "30");
  EXPECT_EQ(client.Answer("workspace/executeCommand",
                          {{"command", "tessel.setValue"},
                           {"arguments", {kUri, "Trooper", "1"}}})["error"]["message"],
            "The editor does not apply edits.");
}

}  // namespace
}  // namespace tessel::lsp::test
