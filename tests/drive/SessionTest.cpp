#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "drive/HeadlessPlayer.h"
#include "drive/Session.h"
#include "posix/PosixFiles.h"
#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"
#include "services/MemorySettingsStore.h"

namespace tessel::drive {
namespace {

/// A conversation and its two sides.
struct Parts {
  explicit Parts(const std::string& input) : in(input) {}

  /// Returns the status with which the program ends.
  int Play(Player& player) {
    MemorySettingsStore settings;
    PosixFiles files;
    MemoryClipboard clipboard;
    IdleMessageLoop loop;
    try {
      Session session(in, out, errors);
      Stage stage({settings, files, clipboard, loop,
                   [] { return std::make_unique<LinearCongruentialRandom>(); }, "/nowhere"},
                  player, session);
      session.Run(stage);
    } catch (const Left& left) {
      return left.status;
    }
    return 0;
  }
  std::vector<Json> Replies() const {
    std::vector<Json> replies;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) replies.push_back(Json::parse(line));
    return replies;
  }

  std::istringstream in;
  std::ostringstream out;
  std::ostringstream errors;
};

/// The replies to all lines of a conversation without a screen.
std::vector<Json> Replies(const std::string& input) {
  Parts parts(input);
  HeadlessPlayer player;
  EXPECT_EQ(parts.Play(player), 0);
  return parts.Replies();
}

const std::string kOpenFind = R"({"do":"click","control":"tbToolBar","key":"Find"})"
                              "\n";
const std::string kCancel = R"({"do":"click","control":"cmdCancel"})"
                            "\n";
const std::string kState = R"({"do":"state"})"
                           "\n";

std::string FirstEvent(const Json& reply) { return reply.at("events").at(0).at("event"); }

/// A person whose screen is not as the models say once a form is open.
class WrongScreenPlayer : public HeadlessPlayer {
 public:
  ucTessel& Open(const Services& services) override {
    tessel_ = &HeadlessPlayer::Open(services);
    return *tessel_;
  }
  std::vector<std::string> Differences() const override {
    const bool open =
        std::ranges::any_of(tessel_->Forms(), [](const Form* form) { return form->Visible(); });
    return open ? std::vector<std::string>{"tbToolBar: enabled is true, expected false"}
                : std::vector<std::string>{};
  }

 private:
  ucTessel* tessel_ = nullptr;
};

TEST(DriveSession, EndsWithADifferenceOfTheScreenOnceItHasAnswered) {
  Parts parts(kState + kOpenFind + kState);
  WrongScreenPlayer player;
  EXPECT_EQ(parts.Play(player), 1);
  const auto replies = parts.Replies();
  ASSERT_EQ(replies.size(), 2U);
  EXPECT_EQ(FirstEvent(replies[1]), "modal");
  EXPECT_EQ(parts.errors.str(), "The screen is not as the models say, after " + kOpenFind +
                                    "  tbToolBar: enabled is true, expected false\n");
}

TEST(DriveSession, RefusesGesturesThatAControlDoesNotKnow) {
  const auto replies = Replies(R"({"do":"select","control":"tbToolBar","entry":0})"
                               "\n"
                               R"({"do":"type","control":"tbsRtb","text":"x"})"
                               "\n");
  ASSERT_EQ(replies.size(), 2U);
  EXPECT_EQ(replies[0].at("error"), "has no entries");
  EXPECT_EQ(replies[1].at("error"), "cannot be typed into");
}

TEST(DriveSession, AnswersEveryLineOnceAlsoABadOne) {
  const auto replies = Replies("{}\nnonsense\n\n" + kState);
  ASSERT_EQ(replies.size(), 4u);
  EXPECT_EQ(replies[0].at("ok"), false);
  EXPECT_EQ(replies[1].at("ok"), false);
  EXPECT_EQ(replies[2].at("ok"), false);
  EXPECT_EQ(replies[3].at("ok"), true);
}

TEST(DriveSession, AnswersTheCommandThatOpensAFormAtOnce) {
  const auto replies = Replies(kOpenFind + kState + kCancel + kState);
  ASSERT_EQ(replies.size(), 4u);
  EXPECT_EQ(FirstEvent(replies[0]), "modal");
  EXPECT_TRUE(replies[1].contains("state"));
  EXPECT_EQ(FirstEvent(replies[2]), "modal closed");
  EXPECT_TRUE(replies[3].contains("state"));
}

TEST(DriveSession, AnswersTheCommandThatClosesAFormWhenWhatFollowsHasRun) {
  const auto replies = Replies(kOpenFind +
                               R"({"do":"type","control":"cboFind","text":"x"})"
                               "\n" +
                               R"({"do":"click","control":"cmdFind"})"
                               "\n");
  ASSERT_EQ(replies.size(), 3u);
  const Json& events = replies[2].at("events");
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].at("event"), "modal closed");
  EXPECT_EQ(events[1].at("text"), "x not found.");
}

TEST(DriveSession, ServesACommandAfterAFormWasOpenedTwice) {
  const auto replies = Replies(kOpenFind + kCancel + kOpenFind + kCancel + kState);
  ASSERT_EQ(replies.size(), 5u);
  EXPECT_EQ(FirstEvent(replies[2]), "modal");
  EXPECT_TRUE(replies[4].contains("state"));
}

TEST(DriveSession, EndsInsideAFormWithTheInputOrWithQuit) {
  EXPECT_EQ(Replies(kOpenFind).size(), 1u);
  const auto replies = Replies(kOpenFind +
                               R"({"do":"quit"})"
                               "\n" +
                               kState);
  ASSERT_EQ(replies.size(), 2u);
  EXPECT_EQ(replies[1].at("ok"), true);
}

}  // namespace
}  // namespace tessel::drive
