// The rules that hold for every settings store.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>

#include "posix/FallbackSettingsStore.h"
#include "posix/SqliteSettingsStore.h"
#include "services/MemorySettingsStore.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using MakeStore = std::unique_ptr<SettingsStore> (*)(const std::string& path);

struct Kind {
  const char* name;
  MakeStore make;
};

const Kind kKinds[] = {
    {"InMemory",
     [](const std::string&) -> std::unique_ptr<SettingsStore> {
       return std::make_unique<MemorySettingsStore>();
     }},
    {"InAFile",
     [](const std::string& path) -> std::unique_ptr<SettingsStore> {
       return std::make_unique<SqliteSettingsStore>(path);
     }},
    {"WithAFallback", [](const std::string& path) -> std::unique_ptr<SettingsStore> {
       return std::make_unique<FallbackSettingsStore>(path, nullptr);
     }}};

class SettingsStoreTest : public testing::TestWithParam<Kind> {
 protected:
  TempDirectory directory;
  std::unique_ptr<SettingsStore> store = GetParam().make(directory / "settings.db");
};

INSTANTIATE_TEST_SUITE_P(Every, SettingsStoreTest, testing::ValuesIn(kKinds),
                         [](const auto& param) { return std::string(param.param.name); });

TEST_P(SettingsStoreTest, IsEmptyAtFirst) {
  EXPECT_EQ(store->GetSetting("Paths", "CONPath"), std::nullopt);
  EXPECT_THAT(store->GetAllSettings("Paths"), IsEmpty());
  EXPECT_NO_THROW(store->DeleteSetting("Paths", "CONPath"));
}

TEST_P(SettingsStoreTest, GivesBackWhatWasSaved) {
  store->SaveSetting("Paths", "CONPath", "/games");
  EXPECT_EQ(store->GetSetting("Paths", "CONPath"), "/games");
  store->SaveSetting("Paths", "CONPath", "");
  EXPECT_EQ(store->GetSetting("Paths", "CONPath"), "");
}

TEST_P(SettingsStoreTest, ComparesByAsciiCaseAndKeepsTheCaseFirstWritten) {
  store->SaveSetting("ConWords", "AddAmmo", "1");
  store->SaveSetting("CONWORDS", "ADDAMMO", "2");
  EXPECT_EQ(store->GetSetting("conwords", "addammo"), "2");
  EXPECT_THAT(store->GetAllSettings("conWords"), ElementsAre(Pair("AddAmmo", "2")));
  store->DeleteSetting("conwords", "ADDammo");
  EXPECT_THAT(store->GetAllSettings("ConWords"), IsEmpty());
}

TEST_P(SettingsStoreTest, TellsLettersBeyondAsciiApartByCase) {
  store->SaveSetting("s", "\xC4", "upper");
  store->SaveSetting("s", "\xE4", "lower");
  EXPECT_THAT(store->GetAllSettings("s"),
              ElementsAre(Pair("\xC4", "upper"), Pair("\xE4", "lower")));
}

TEST_P(SettingsStoreTest, KeepsSectionsApart) {
  store->SaveSetting("a", "key", "1");
  store->SaveSetting("b", "key", "2");
  store->DeleteSetting("a", "key");
  EXPECT_EQ(store->GetSetting("a", "key"), std::nullopt);
  EXPECT_EQ(store->GetSetting("b", "key"), "2");
}

TEST_P(SettingsStoreTest, ReturnsEntriesInTheOrderOfFirstWriting) {
  for (const char* key : {"z", "m", "a"}) store->SaveSetting("s", key, "1");
  store->SaveSetting("s", "z", "again");
  EXPECT_THAT(store->GetAllSettings("s"),
              ElementsAre(Pair("z", "again"), Pair("m", "1"), Pair("a", "1")));
  store->DeleteSetting("s", "z");
  store->SaveSetting("s", "z", "anew");
  EXPECT_THAT(store->GetAllSettings("s"),
              ElementsAre(Pair("m", "1"), Pair("a", "1"), Pair("z", "anew")));
  store->DeleteSetting("s", "z");
  store->SaveSetting("s", "Z", "and anew");
  EXPECT_THAT(store->GetAllSettings("s"),
              ElementsAre(Pair("m", "1"), Pair("a", "1"), Pair("Z", "and anew")));
}

TEST_P(SettingsStoreTest, SavesManyEntriesInTheirOrder) {
  store->SaveSetting("s", "b", "old");
  store->SaveSettings("S", {{"c", "1"}, {"B", "2"}, {"a", "3"}});
  EXPECT_THAT(store->GetAllSettings("s"),
              ElementsAre(Pair("b", "2"), Pair("c", "1"), Pair("a", "3")));
  EXPECT_NO_THROW(store->SaveSettings("s", {}));
}

TEST_P(SettingsStoreTest, KeepsAnyBytes) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  store->SaveSetting(bytes, bytes, bytes);
  store->SaveSetting(bytes, std::string("a\0b", 3), "1");
  store->SaveSetting(bytes, std::string("a\0c", 3), "2");
  store->SaveSetting(bytes, "a", "3");
  store->SaveSetting(bytes, "", "4");
  EXPECT_EQ(store->GetSetting(bytes, bytes), bytes);
  EXPECT_EQ(store->GetSetting(bytes, std::string("A\0B", 3)), "1");
  EXPECT_EQ(store->GetSetting(bytes, "a"), "3");
  EXPECT_EQ(store->GetSetting(bytes, ""), "4");
  EXPECT_EQ(store->GetAllSettings(bytes).size(), 5U);
}

// The one in the file agrees with the one in memory, whatever is done.
RC_GTEST_PROP(SettingsStores, AgreeAfterEveryOperation, ()) {
  const TempDirectory directory;
  SqliteSettingsStore file(directory / "settings.db");
  MemorySettingsStore memory;
  const auto name = rc::gen::element<std::string>("a", "A", "b", std::string("a\0", 2), "\xE4", "");
  for (int i = *rc::gen::inRange(1, 15); i > 0; --i) {
    const std::string section = *rc::gen::element<std::string>("s", "S", "t");
    const std::string key = *name;
    if (*rc::gen::inRange(0, 3) == 0) {
      file.DeleteSetting(section, key);
      memory.DeleteSetting(section, key);
    } else {
      const auto value = *rc::gen::arbitrary<std::string>();
      file.SaveSetting(section, key, value);
      memory.SaveSetting(section, key, value);
    }
    RC_ASSERT(file.GetSetting(section, key) == memory.GetSetting(section, key));
    RC_ASSERT(file.GetAllSettings("s") == memory.GetAllSettings("s"));
    RC_ASSERT(file.GetAllSettings("t") == memory.GetAllSettings("t"));
  }
}

}  // namespace
}  // namespace tessel::test
