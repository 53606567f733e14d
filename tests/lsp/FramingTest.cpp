// Messages are cut out of the stream however it comes.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "lsp/messages/Framing.h"

namespace tessel::lsp {
namespace {

std::vector<std::string> AllOf(FrameReader& reader) {
  std::vector<std::string> messages;
  while (auto message = reader.Next()) messages.push_back(std::move(*message));
  return messages;
}

std::string ProblemWith(const std::string& stream) {
  FrameReader reader;
  reader.Feed(stream);
  try {
    AllOf(reader);
  } catch (const FramingError& error) {
    return error.what();
  }
  return "none";
}

TEST(Framing, GivesAMessageOnceAllOfItIsThere) {
  FrameReader reader;
  reader.Feed("Content-Length: 5\r\n\r\nhel");
  EXPECT_EQ(reader.Next(), std::nullopt);
  EXPECT_TRUE(reader.IsInMidst());
  reader.Feed("lo");
  EXPECT_EQ(reader.Next(), "hello");
  EXPECT_FALSE(reader.IsInMidst());
}

TEST(Framing, TakesOtherHeadersAndAnyCase) {
  FrameReader reader;
  reader.Feed(
      "Content-Type: application/vscode-jsonrpc; charset=utf-8\r\ncontent-length:2\r\n\r\n{}");
  EXPECT_EQ(reader.Next(), "{}");
}

TEST(Framing, TakesAnEmptyMessage) {
  FrameReader reader;
  reader.Feed(Framed(""));
  EXPECT_EQ(reader.Next(), "");
}

TEST(Framing, RefusesWhatHasNoLength) {
  EXPECT_EQ(ProblemWith("Content-Type: x\r\n\r\n{}"),
            "A header does not say how long its message is.");
  EXPECT_EQ(ProblemWith("Content-Length: five\r\n\r\n{}"), "The length of a message is no number.");
  EXPECT_EQ(ProblemWith("Content-Length: -1\r\n\r\n{}"), "The length of a message is no number.");
  EXPECT_EQ(ProblemWith("Content-Length: \r\n\r\n{}"), "The length of a message is no number.");
  EXPECT_EQ(ProblemWith("hello\r\n\r\n"), "A line of a header has no colon.");
}

TEST(Framing, RefusesWhatIsTooLong) {
  EXPECT_EQ(ProblemWith("Content-Length: 1073741825\r\n\r\n"), "A message has more than 1 GiB.");
  EXPECT_EQ(ProblemWith("Content-Length: 99999999999999999999\r\n\r\n"),
            "The length of a message is no number.");
  EXPECT_EQ(ProblemWith(std::string(FrameReader::kMostHeader, 'x')), "A header does not end.");
}

RC_GTEST_PROP(Framing, GivesTheSameHoweverTheStreamIsSliced, ()) {
  const auto messages = *rc::gen::container<std::vector<std::string>>(
      rc::gen::container<std::string>(rc::gen::arbitrary<char>()));
  std::string stream;
  for (const std::string& message : messages) stream += Framed(message);
  FrameReader reader;
  std::vector<std::string> got;
  while (!stream.empty()) {
    const auto length = *rc::gen::inRange<std::size_t>(1, stream.size() + 1);
    reader.Feed(stream.substr(0, length));
    stream.erase(0, length);
    for (std::string& message : AllOf(reader)) got.push_back(std::move(message));
  }
  RC_ASSERT(got == messages);
  RC_ASSERT(!reader.IsInMidst());
}

}  // namespace
}  // namespace tessel::lsp
