// Whatever the messages are, the server answers or ends, and what it still has is in order.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "RecordedSession.h"
#include "TestClient.h"
#include "lsp/messages/Framing.h"

namespace tessel::lsp::test {
namespace {

int Tries() {
  const char* const wanted = std::getenv("TESSEL_LSP_TRIES");
  return wanted == nullptr ? 1000 : std::atoi(wanted);
}

class Mutator {
 public:
  explicit Mutator(std::uint32_t seed) : random_(seed) {}

  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

  /// One to three changes of bytes, or of a value deep in the message.
  std::string Mutated(std::string message, const std::vector<std::string>& others) {
    for (std::size_t changes = 1 + Below(3); changes > 0; --changes) {
      if (Below(2) == 0) {
        ChangeBytes(message, others);
      } else {
        ChangeValue(message, others);
      }
    }
    return message;
  }

 private:
  void ChangeBytes(std::string& message, const std::vector<std::string>& others) {
    const std::size_t at = Below(message.size() + 1);
    const std::size_t length = Below(std::min<std::size_t>(message.size() - at, 9) + 1);
    switch (Below(4)) {
      case 0:
        message.erase(at, length);
        break;
      case 1:
        message.insert(at, message.substr(Below(message.size()), length));
        break;
      case 2: {
        const std::string& other = others[Below(others.size())];
        const std::size_t from = Below(other.size());
        message.replace(at, length, other.substr(from, Below(40)));
        break;
      }
      default:
        for (std::size_t i = at; i < at + length; ++i) message[i] = static_cast<char>(Below(256));
    }
  }

  Json* AnyValue(Json& json) {
    Json* at = &json;
    while (at->is_structured() && !at->empty() && Below(5) != 0) {
      auto next = at->begin();
      std::advance(next, static_cast<std::ptrdiff_t>(Below(at->size())));
      at = &*next;
    }
    return at;
  }

  void ChangeValue(std::string& message, const std::vector<std::string>& others) {
    Json json = Json::parse(message, nullptr, false);
    if (json.is_discarded()) return ChangeBytes(message, others);
    Json* value = AnyValue(json);
    static const std::vector<Json> kValues = {nullptr,
                                              true,
                                              0,
                                              -1,
                                              1,
                                              7,
                                              1000000000,
                                              -9223372036854775807,
                                              18446744073709551615U,
                                              1e300,
                                              "",
                                              "file:///mod/USER.CON",
                                              "file:///",
                                              "a/*",
                                              "\xF0\x9F\x98\x80",
                                              Json::array(),
                                              Json::object(),
                                              {{"line", 0}, {"character", 4294967295U}}};
    Json other = Json::parse(others[Below(others.size())], nullptr, false);
    *value = Below(3) == 0 ? *AnyValue(other) : kValues[Below(kValues.size())];
    message = json.dump(-1, ' ', false, Json::error_handler_t::replace);
  }

  std::mt19937 random_;
};

/// The messages that clients have sent in the recorded sessions.
std::vector<std::string> RecordedMessages() {
  std::vector<std::string> messages;
  for (const std::string& session : SessionNames()) {
    for (const Step& step : ReadSession(session)) {
      if (step.kind == Step::Kind::kSent) messages.push_back(step.message);
    }
  }
  return messages;
}

TEST(MutatedMessages, AreAnsweredOrEndTheServer) {
  const std::vector<std::string> messages = RecordedMessages();
  ASSERT_GT(messages.size(), 20U);
  int ended = 0, answered = 0;
  for (int round = 0; round < Tries();) {
    TestClient client;
    for (std::size_t i = 0; i < messages.size() && !client.Peer().HasEnded(); ++i) {
      Mutator mutator(static_cast<std::uint32_t>(round) * 7919U + static_cast<std::uint32_t>(i));
      // The first ones come as they are, so that there is something to talk about.
      const bool isGood = i < 3 || mutator.Below(2) == 0;
      if (!isGood) ++round;
      client.SendText(isGood ? messages[i] : mutator.Mutated(messages[i], messages));
      if (mutator.Below(8) == 0) client.Check();
    }
    if (client.Peer().HasEnded()) {
      ++ended;
      continue;
    }
    client.Forget();
    const Json answer = client.Answer("textDocument/nothing", nullptr);
    ASSERT_TRUE(answer.contains("error")) << round;
    ++answered;
  }
  EXPECT_GT(answered, 0);
  RecordProperty("ended", ended);
}

TEST(MutatedMessages, NeverLeaveARequestWithoutItsAnswer) {
  const std::vector<std::string> messages = RecordedMessages();
  TestClient client;
  for (std::size_t i = 0; i < 3; ++i) client.SendText(messages[i]);
  for (int round = 0; round < Tries(); ++round) {
    Mutator mutator(static_cast<std::uint32_t>(round) + 77777U);
    const std::string message = mutator.Mutated(messages[mutator.Below(messages.size())], messages);
    const Json json = Json::parse(message, nullptr, false);
    if (!json.is_object() || !json.contains("id") || !json.contains("method")) continue;
    if (json["method"] == "shutdown") continue;
    client.Forget();
    client.SendText(message);
    int answers = 0;
    for (const Json& each : client.Received()) answers += each.contains("method") ? 0 : 1;
    ASSERT_EQ(answers, 1) << message;
  }
}

TEST(MutatedStreams, AreCutIntoMessagesOrRefused) {
  std::string stream;
  for (const std::string& message : RecordedMessages()) stream += Framed(message);
  for (int round = 0; round < Tries(); ++round) {
    Mutator mutator(static_cast<std::uint32_t>(round) + 55555U);
    std::string mutated = stream;
    for (int i = 0; i < 3; ++i) {
      mutated[mutator.Below(mutated.size())] = static_cast<char>(mutator.Below(256));
    }
    FrameReader reader;
    try {
      std::size_t total = 0;
      for (std::string_view rest = mutated; !rest.empty();) {
        const std::size_t length = std::min(rest.size(), 1 + mutator.Below(5000));
        reader.Feed(rest.substr(0, length));
        rest.remove_prefix(length);
        while (const auto message = reader.Next()) total += message->size();
      }
      ASSERT_LE(total, mutated.size());
    } catch (const FramingError& error) {
      ASSERT_NE(std::string(error.what()), "");
    }
  }
}

}  // namespace
}  // namespace tessel::lsp::test
