// Every session of sessions/ goes as it is recorded. TESSEL_LSP_RECORD=FOLDER writes what the
// server answers now, for a person who compares.
#include <gtest/gtest.h>

#include <cstdlib>

#include "RecordedSession.h"
#include "TestClient.h"

namespace tessel::lsp::test {
namespace {

class RecordedSessions : public testing::TestWithParam<std::string> {};

std::string Played(const std::string& name) {
  TestClient client;
  std::string played;
  for (const Step& step : ReadSession(name)) {
    if (step.kind == Step::Kind::kAnswered) continue;
    client.Forget();
    if (step.kind == Step::Kind::kSent) client.SendText(step.message);
    if (step.kind == Step::Kind::kCheck) client.Check();
    played += (step.kind == Step::Kind::kSent ? "--> " : "") + step.message + "\n";
    for (const Json& message : client.Received()) played += "<-- " + message.dump() + "\n";
  }
  return played;
}

std::string Recorded(const std::string& name) {
  std::string recorded;
  for (const Step& step : ReadSession(name)) {
    const bool sent = step.kind == Step::Kind::kSent;
    recorded += sent ? "--> " : step.kind == Step::Kind::kAnswered ? "<-- " : "";
    recorded += step.message + "\n";
  }
  return recorded;
}

TEST_P(RecordedSessions, GoesAsItIsRecorded) {
  const std::string played = Played(GetParam());
  if (const char* folder = std::getenv("TESSEL_LSP_RECORD")) {
    std::ofstream(std::string(folder) + "/" + GetParam() + ".txt") << played;
  }
  EXPECT_EQ(played, Recorded(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, RecordedSessions, testing::ValuesIn(SessionNames()),
                         [](const auto& each) {
                           std::string name = each.param;
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace tessel::lsp::test
