// The thread that writes unsaved texts, kept busy from all sides. ThreadSanitizer watches it in the
// preset "tsan".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <map>
#include <random>
#include <thread>

#include "safekeeping/RecoveryStore.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using namespace std::chrono_literals;

class RecoveryThread : public testing::Test {
 protected:
  static std::optional<std::string> Nowhere(const std::string&) { return std::nullopt; }

  std::map<std::string, std::string> Offered() const {
    std::map<std::string, std::string> texts;
    const AbandonedTexts abandoned(folder_, Nowhere);
    for (const auto& text : abandoned.Texts()) texts[text.path] = text.bytes;
    return texts;
  }

  TempDirectory directory_;
  std::string folder_ = directory_ / "recovery";
};

/// The orders of a person's documents, in any sequence, and what is to be on the disk after them.
class Orders {
 public:
  explicit Orders(RecoveryStore& store) : store_(store) {}

  void GiveOne() {
    const int id = static_cast<int>(random_() % 4);
    switch (random_() % 8) {
      case 0:
        store_.Drop(id);
        kept_.erase(id);
        break;
      case 1:
        Move(id, (id + 1) % 4);
        break;
      case 2:
        if (store_.TakeLoss()) KeepAllAgain();
        store_.TakeProblem();
        break;
      default:
        Keep(id, std::string(random_() % 9000, static_cast<char>('a' + random_() % 26)));
    }
  }
  void KeepAllAgain() {
    for (const auto& [id, bytes] : std::map(kept_)) Keep(id, bytes);
  }
  std::map<std::string, std::string> Expected() const {
    std::map<std::string, std::string> texts;
    for (const auto& [id, bytes] : kept_) texts[PathOf(id)] = bytes;
    return texts;
  }

 private:
  static std::string PathOf(int id) { return "/" + std::to_string(id); }

  void Keep(int id, const std::string& bytes) {
    store_.Keep(id, PathOf(id), bytes);
    kept_[id] = bytes;
  }
  void Move(int from, int to) {
    if (!kept_.contains(from)) return;
    Keep(to, kept_[from]);
    store_.DropReplaced(from, to);
    kept_.erase(from);
  }

  RecoveryStore& store_;
  std::mt19937 random_{7};
  std::map<int, std::string> kept_;
};

TEST_F(RecoveryThread, HasTheLastTextsOnTheDiskAfterAnyOrders) {
  std::map<std::string, std::string> expected;
  {
    RecoveryStore store(folder_, 1ms);
    Orders orders(store);
    for (int i = 0; i < 400; ++i) {
      orders.GiveOne();
      EXPECT_TRUE(i % 50 != 0 || store.Flush());
    }
    expected = orders.Expected();
  }
  EXPECT_THAT(expected, testing::Not(testing::IsEmpty()));
  EXPECT_EQ(Offered(), expected);
}

TEST_F(RecoveryThread, HasThemThereThoughTheFolderVanishesAgainAndAgain) {
  std::map<std::string, std::string> expected;
  {
    RecoveryStore store(folder_, 1ms);
    Orders orders(store);
    std::atomic<bool> done = false;
    std::thread mover([&] {
      for (int i = 0; !done; ++i) {
        std::error_code gone;
        std::filesystem::rename(folder_, directory_ / ("aside-" + std::to_string(i)), gone);
        std::this_thread::sleep_for(3ms);
      }
    });
    for (int i = 0; i < 400; ++i) {
      orders.GiveOne();
      std::this_thread::sleep_for(100us);
    }
    done = true;
    mover.join();
    for (int i = 0; i < 500 && !store.Flush(); ++i) std::this_thread::sleep_for(10ms);
    orders.KeepAllAgain();
    EXPECT_TRUE(store.Flush());
    expected = orders.Expected();
  }
  EXPECT_THAT(expected, testing::Not(testing::IsEmpty()));
  EXPECT_EQ(Offered(), expected);
}

TEST_F(RecoveryThread, LeavesNothingWhenItEndsInTheMiddleOfItsWork) {
  for (int i = 0; i < 20; ++i) {
    RecoveryStore store(folder_, 1ms);
    Orders orders(store);
    for (int k = 0; k < 10; ++k) orders.GiveOne();
    store.Finish();
  }
  EXPECT_TRUE(Offered().empty());
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

// As when several programs start and write at once.
TEST_F(RecoveryThread, KeepsEachStoresTextsApartInOneFolder) {
  constexpr int kStores = 4;
  std::vector<std::thread> programs;
  std::atomic<int> kept = 0;
  for (int i = 0; i < kStores; ++i) {
    programs.emplace_back([&, i] {
      RecoveryStore store(folder_, 1ms);
      for (int k = 0; k < 20; ++k) store.Keep(1, "/" + std::to_string(i), std::to_string(k));
      EXPECT_TRUE(store.Flush());
      ++kept;
      while (kept < kStores) std::this_thread::yield();
      EXPECT_TRUE(Offered().empty()) << "all of them live";
      ++kept;
      while (kept < 2 * kStores) std::this_thread::yield();
    });
  }
  for (std::thread& program : programs) program.join();
  EXPECT_EQ(Offered(), (std::map<std::string, std::string>{
                           {"/0", "19"}, {"/1", "19"}, {"/2", "19"}, {"/3", "19"}}));
}

}  // namespace
}  // namespace tessel::test
