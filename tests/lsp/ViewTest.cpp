// Folding and tokens are those of the window.
#include <gtest/gtest.h>

#include "TestClient.h"
#include "language/FoldLines.h"
#include "lsp/features/Features.h"
#include "text/SafeText.h"

namespace tessel::lsp::test {
namespace {

class View : public testing::Test {
 protected:
  View() { client_.Initialize(); }

  std::string Folds(const std::string& text) {
    client_.Open(kUri, text);
    std::string folds;
    for (const Json& fold :
         client_.Ask("textDocument/foldingRange", {{"textDocument", {{"uri", kUri}}}})) {
      folds += std::to_string(fold["startLine"].get<int>()) + "-" +
               std::to_string(fold["endLine"].get<int>()) + " ";
    }
    return folds;
  }
  /// "0:0+6 keyword", a line each.
  static std::string Shown(const Json& tokens) {
    const Json kinds = SemanticTokenKinds();
    std::string text;
    int line = 0, column = 0;
    const Json& data = tokens["data"];
    for (std::size_t i = 0; i < data.size(); i += 5) {
      const int down = data[i];
      line += down;
      column = down == 0 ? column + data[i + 1].get<int>() : data[i + 1].get<int>();
      text += std::to_string(line) + ":" + std::to_string(column) + "+" +
              std::to_string(data[i + 2].get<int>()) + " " +
              kinds[data[i + 3].get<std::size_t>()].get<std::string>() + "\n";
    }
    return text;
  }
  std::string Tokens(const std::string& text) {
    client_.Open(kUri, text);
    return Shown(
        client_.Ask("textDocument/semanticTokens/full", {{"textDocument", {{"uri", kUri}}}}));
  }

  TestClient client_;
};

TEST_F(View, FoldsEachBlockUpToItsEnd) {
  EXPECT_EQ(Folds("state a\n x\nends\nactor B 1\n ifrnd 1\n {\n  x\n }\nenda\n"), "0-2 5-7 3-8 ");
}

TEST_F(View, FoldsNothingInALine) { EXPECT_EQ(Folds("state a { } ends\n"), ""); }

TEST_F(View, HasTheLineThatClosesAndOpensInNeitherFold) {
  EXPECT_EQ(Folds("{\n a\n} {\n b\n}\n"), "0-1 2-4 ");
}

TEST_F(View, ColoursTheWordsOfThePass) {
  EXPECT_EQ(Tokens("define A 1 // one\ndefinequote 1 x\ndefinelevelname 0 0 A.map 1:00 1:00 A\n"),
            "0:0+6 keyword\n0:11+6 comment\n1:0+11 keyword\n2:0+15 macro\n");
}

TEST_F(View, CutsCommentsOfSeveralLines) {
  EXPECT_EQ(Tokens("/* a\r\n\r\nb */"), "0:0+4 comment\n2:0+4 comment\n");
}

TEST_F(View, CountsUnitsOfUtf16) {
  EXPECT_EQ(Tokens("/* \xF0\x9F\x98\x80 */ define \xE2\x82\xAC // \xF0\x9F\x98\x80\n"),
            "0:0+9 comment\n0:9+6 keyword\n0:18+5 comment\n");
}

TEST_F(View, ColoursALineAsItColoursAll) {
  const std::string text = ToUtf8(TestResources().newerTemplate);
  const std::string all = Tokens(text);
  std::string byLines;
  const int lines = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
  for (int line = 0; line <= lines; ++line) {
    byLines += Shown(
        client_.Ask("textDocument/semanticTokens/range",
                    {{"textDocument", {{"uri", kUri}}}, {"range", TestClient::Span(line, 0, 1)}}));
  }
  EXPECT_EQ(byLines, all);
}

TEST_F(View, FollowsTheTextWhileItIsEdited) {
  Tokens("define A 1\n");
  client_.Change(kUri, 2, {{{"range", TestClient::Span(0, 0, 0)}, {"text", "// "}}});
  EXPECT_EQ(
      Shown(client_.Ask("textDocument/semanticTokens/full", {{"textDocument", {{"uri", kUri}}}})),
      "0:0+13 comment\n");
}

}  // namespace
}  // namespace tessel::lsp::test
