// What may come when, and what is answered otherwise.
#include <gtest/gtest.h>

#include "TestClient.h"

namespace tessel::lsp::test {
namespace {

constexpr int kParseError = -32700, kInvalidRequest = -32600, kMethodNotFound = -32601,
              kInvalidParams = -32602, kNotInitialized = -32002, kCancelled = -32800;

TEST(Lifecycle, NothingIsAnsweredBeforeTheServerIsInitialized) {
  TestClient client;
  EXPECT_EQ(client.ErrorOf("textDocument/hover", TestClient::At(kUri, 0, 0)), kNotInitialized);
  EXPECT_EQ(client.ErrorOf("shutdown", nullptr), kNotInitialized);
  client.Open(kUri, "define A 1\n");
  client.Initialize();
  EXPECT_EQ(client.ErrorOf("textDocument/hover", TestClient::At(kUri, 0, 0)), kInvalidParams);
}

TEST(Lifecycle, AServerIsInitializedOnce) {
  TestClient client;
  client.Initialize();
  EXPECT_EQ(client.ErrorOf("initialize", Json::object()), kInvalidRequest);
}

TEST(Lifecycle, InitializingTellsWhatTheServerCanDo) {
  TestClient client;
  const Json result = client.Ask("initialize", {{"capabilities", Json::object()}});
  EXPECT_EQ(result["serverInfo"]["name"], "tessel");
  EXPECT_EQ(result["capabilities"]["textDocumentSync"]["change"], 2);
  EXPECT_EQ(result["capabilities"]["positionEncoding"], "utf-16");
}

TEST(Lifecycle, Utf8IsTakenWhereTheClientOffersIt) {
  TestClient client;
  const Json result =
      client.Ask("initialize",
                 {{"capabilities", {{"general", {{"positionEncodings", {"utf-16", "utf-8"}}}}}}});
  EXPECT_EQ(result["capabilities"]["positionEncoding"], "utf-8");
}

TEST(Lifecycle, BehindShutdownOnlyExitIsTaken) {
  TestClient client;
  client.Initialize();
  EXPECT_EQ(client.Ask("shutdown", nullptr), Json());
  EXPECT_EQ(client.ErrorOf("textDocument/hover", TestClient::At(kUri, 0, 0)), kInvalidRequest);
  EXPECT_EQ(client.ErrorOf("shutdown", nullptr), kInvalidRequest);
  EXPECT_FALSE(client.Peer().HasEnded());
  client.Notify("exit", nullptr);
  EXPECT_TRUE(client.Peer().HasEnded());
  EXPECT_EQ(client.Peer().ExitStatus(), 0);
}

TEST(Lifecycle, ExitWithoutShutdownIsAFailure) {
  TestClient client;
  client.Initialize();
  client.Notify("exit", nullptr);
  EXPECT_TRUE(client.Peer().HasEnded());
  EXPECT_EQ(client.Peer().ExitStatus(), 1);
}

TEST(Lifecycle, ExitEndsAServerThatWasNeverInitialized) {
  TestClient client;
  client.Notify("exit", nullptr);
  EXPECT_TRUE(client.Peer().HasEnded());
  EXPECT_EQ(client.Peer().ExitStatus(), 1);
}

TEST(Lifecycle, WhatIsNoRequestIsAnsweredAsSuch) {
  TestClient client;
  client.Initialize();
  const auto errorOf = [&](const std::string& text) {
    client.Forget();
    client.SendText(text);
    return client.Received().size() == 1 && client.Received()[0]["id"].is_null()
               ? client.Received()[0]["error"]["code"].get<int>()
               : 0;
  };
  EXPECT_EQ(errorOf("{"), kParseError);
  EXPECT_EQ(errorOf("{\"a\":\"\xff\"}"), kParseError);
  EXPECT_EQ(errorOf("[]"), kInvalidRequest);
  EXPECT_EQ(errorOf("7"), kInvalidRequest);
  EXPECT_EQ(errorOf("{}"), kInvalidRequest);
  EXPECT_EQ(errorOf(R"({"id":1,"method":7})"), kInvalidRequest);
  EXPECT_EQ(errorOf(R"({"id":[1],"method":"shutdown"})"), kInvalidRequest);
  EXPECT_EQ(errorOf(R"({"id":null,"method":"shutdown"})"), kInvalidRequest);
  EXPECT_EQ(client.ErrorOf("textDocument/nothing", nullptr), kMethodNotFound);
  EXPECT_EQ(client.ErrorOf("$/nothing", nullptr), kMethodNotFound);
}

TEST(Lifecycle, AMessageMayBeNestedAsDeeplyAsItLikes) {
  constexpr std::size_t kDeep = 1'000'000;
  TestClient client;
  client.Initialize();
  const std::string nested = std::string(kDeep, '[') + std::string(kDeep, ']');
  client.Forget();
  client.SendText(R"({"id":5,"method":"textDocument/hover","params":)" + nested + "}");
  ASSERT_EQ(client.Received().size(), 1U);
  EXPECT_EQ(client.Received()[0]["error"]["code"], kInvalidParams);
}

TEST(Lifecycle, UnknownNotificationsAndAnswersAreLetPass) {
  TestClient client;
  client.Initialize();
  client.Forget();
  client.Notify("$/setTrace", {{"value", "off"}});
  client.Notify("textDocument/unheardOf", 7);
  client.Send({{"jsonrpc", "2.0"}, {"id", "tessel-1"}, {"result", nullptr}});
  EXPECT_TRUE(client.Received().empty());
}

TEST(Lifecycle, AnIdMayBeATextOrANumber) {
  TestClient client;
  client.Initialize();
  client.Forget();
  client.Send({{"jsonrpc", "2.0"}, {"id", "a\"b"}, {"method", "shutdown"}});
  ASSERT_EQ(client.Received().size(), 1U);
  EXPECT_EQ(client.Received()[0]["id"], "a\"b");
}

TEST(Lifecycle, ARequestThatWaitsCanBeCancelled) {
  TestClient client;
  client.Initialize();
  client.Open(kUri, "define A 1\n");
  client.Forget();
  Server& server = client.Peer();
  const auto hover = [](int id) {
    return Json{
        {"id", id}, {"method", "textDocument/hover"}, {"params", TestClient::At(kUri, 0, 7)}}
        .dump();
  };
  server.Take(hover(71));
  server.Take(hover(72));
  server.Take(R"({"method":"$/cancelRequest","params":{"id":71}})");
  server.Take(R"({"method":"$/cancelRequest","params":{"id":99}})");
  ASSERT_EQ(client.Received().size(), 1U);
  EXPECT_EQ(client.Received()[0]["id"], 71);
  EXPECT_EQ(client.Received()[0]["error"]["code"], kCancelled);
  EXPECT_EQ(server.Waiting(), 1U);
  server.Work();
  EXPECT_EQ(client.Received().back()["id"], 72);
  EXPECT_TRUE(client.Received().back().contains("result"));
}

TEST(Lifecycle, MissingParametersAreTold) {
  TestClient client;
  client.Initialize();
  client.Open(kUri, "define A 1\n");
  EXPECT_EQ(client.ErrorOf("textDocument/hover", nullptr), kInvalidParams);
  EXPECT_EQ(client.ErrorOf("textDocument/hover", {{"textDocument", {{"uri", kUri}}}}),
            kInvalidParams);
  EXPECT_EQ(client.ErrorOf("textDocument/hover", TestClient::At(kUri, -1, 0)), kInvalidParams);
  EXPECT_EQ(client.ErrorOf("textDocument/rename", TestClient::At(kUri, 0, 7)), kInvalidParams);
}

TEST(Lifecycle, AChangeThatCannotBeMadeIsLogged) {
  TestClient client;
  client.Initialize();
  client.Forget();
  client.Rewrite("file:///mod/OTHER.CON", 2, "x");
  ASSERT_EQ(client.Received().size(), 1U);
  EXPECT_EQ(client.Received()[0]["method"], "window/logMessage");
}

}  // namespace
}  // namespace tessel::lsp::test
