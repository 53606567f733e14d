// An editor that talks to a server in its own process, message by message.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/DataFiles.h"
#include "lsp/Server.h"
#include "words/WordFile.h"

namespace tessel::lsp::test {

inline const std::string kUri = "file:///mod/USER.CON";

inline Resources TestResources() {
  return {.words = ParseWordFile(tessel::test::ReadDataFile("words.txt")),
          .olderTemplate = tessel::test::ReadDataFile("zmuser.dat"),
          .newerTemplate = tessel::test::ReadDataFile("zmuserp.dat"),
          .version = "1"};
}

class TestClient {
 public:
  TestClient()
      : server_(TestResources(),
                [this](const std::string& message) { received_.push_back(Json::parse(message)); }) {
  }

  Server& Peer() { return server_; }

  /// Sends a message and has all of the work done.
  void Send(const Json& message) { SendText(message.dump()); }
  void SendText(const std::string& message) {
    server_.Take(message);
    while (server_.Waiting() > 0) server_.Work();
  }
  void Notify(const char* method, Json params) {
    Send({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
  }
  /// The answer to a request, as a whole.
  Json Answer(const char* method, Json params) {
    const int id = ++lastId_;
    Send({{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", std::move(params)}});
    for (const Json& message : received_) {
      if (message.contains("id") && message["id"] == id && !message.contains("method")) {
        return message;
      }
    }
    ADD_FAILURE() << method << " got no answer";
    return {};
  }
  /// What it gives; an error is a failure.
  Json Ask(const char* method, Json params) {
    Json answer = Answer(method, std::move(params));
    EXPECT_FALSE(answer.contains("error")) << answer;
    return answer.value("result", Json());
  }
  /// The code of the error that it gets.
  int ErrorOf(const char* method, Json params) {
    const Json answer = Answer(method, std::move(params));
    return answer.contains("error") ? answer["error"]["code"].get<int>() : 0;
  }

  void Initialize(Json capabilities = FullCapabilities(), const std::string& folder = {}) {
    Ask("initialize", {{"processId", nullptr},
                       {"rootUri", folder.empty() ? Json() : Json("file://" + folder)},
                       {"capabilities", std::move(capabilities)}});
    Notify("initialized", Json::object());
  }
  static Json FullCapabilities() {
    return {{"workspace", {{"applyEdit", true}, {"workspaceEdit", {{"documentChanges", true}}}}}};
  }

  void Open(const std::string& uri, const std::string& text, int version = 1) {
    Notify("textDocument/didOpen",
           {{"textDocument",
             {{"uri", uri}, {"languageId", "con"}, {"version", version}, {"text", text}}}});
  }
  void Change(const std::string& uri, int version, Json changes) {
    Notify("textDocument/didChange", {{"textDocument", {{"uri", uri}, {"version", version}}},
                                      {"contentChanges", std::move(changes)}});
  }
  /// All of the text.
  void Rewrite(const std::string& uri, int version, const std::string& text) {
    Change(uri, version, {{{"text", text}}});
  }

  /// The parameters of requests about a place.
  static Json At(const std::string& uri, int line, int character) {
    return {{"textDocument", {{"uri", uri}}},
            {"position", {{"line", line}, {"character", character}}}};
  }
  static Json Span(int line, int from, int to) {
    return {{"start", {{"line", line}, {"character", from}}},
            {"end", {{"line", line}, {"character", to}}}};
  }

  /// Has the check made that is due.
  void Check() {
    Session& session = server_.Current();
    const CheckJob job = session.NextCheck();
    session.Publish(job, job.Run(session.known.AsKnowledge()));
  }
  /// What the client was told last of a document: "0:7-0:10 rule", a line each; "untold".
  std::string DiagnosticsOf(const std::string& uri) const {
    std::string text = "untold";
    for (const Json& message : received_) {
      if (message.value("method", "") != "textDocument/publishDiagnostics") continue;
      if (message["params"]["uri"] != uri) continue;
      text.clear();
      for (const Json& each : message["params"]["diagnostics"]) text += Shown(each) + "\n";
    }
    return text;
  }
  static std::string Shown(const Json& diagnostic) {
    return ShownRange(diagnostic["range"]) + " " + diagnostic["code"].get<std::string>();
  }
  static std::string ShownRange(const Json& range) {
    const auto place = [&](const char* end) {
      return std::to_string(range[end]["line"].get<int>()) + ":" +
             std::to_string(range[end]["character"].get<int>());
    };
    return place("start") + "-" + place("end");
  }

  const std::vector<Json>& Received() const { return received_; }
  void Forget() { received_.clear(); }

 private:
  std::vector<Json> received_;
  Server server_;
  int lastId_ = 0;
};

}  // namespace tessel::lsp::test
