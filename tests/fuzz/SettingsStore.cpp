// The settings file. An input is the whole file.
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "fuzz/Fuzzing.h"
#include "posix/FallbackSettingsStore.h"
#include "support/TempDirectory.h"

namespace tessel::fuzz {
namespace {

/// The store goes on whatever it meets; and from the call on that gave the file up, the file holds
/// what it held before that call.
class WatchedStore {
 public:
  WatchedStore(const std::string& path) : path_(path), before_(test::BytesOf(path)) {
    store_ = std::make_unique<FallbackSettingsStore>(path, [this](const std::string& text) {
      Require(text.find(path_) != text.npos, "the report names the file");
      ++reports_;
    });
    RequireKeptWhenGivenUp();
  }

  template <class Call>
  void Use(Call call) {
    if (reports_ == 0) before_ = test::BytesOf(path_);
    call(*store_);
    RequireKeptWhenGivenUp();
  }

 private:
  void RequireKeptWhenGivenUp() const {
    Require(reports_ <= 1, "the user is told once");
    if (reports_ == 1) Require(test::BytesOf(path_) == before_, "a bad file is kept");
  }

  std::string path_;
  std::string before_;
  int reports_ = 0;
  std::unique_ptr<FallbackSettingsStore> store_;
};

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  static const test::TempDirectory directory;
  for (const std::string& name : directory.Names()) std::filesystem::remove(directory / name);
  const std::string path = directory.Put("settings.db", AsText(data, size));

  WatchedStore store(path);
  store.Use([](SettingsStore& s) { s.GetAllSettings("ConWords"); });
  store.Use([](SettingsStore& s) { s.GetSetting("Paths", "CONPath"); });
  store.Use([](SettingsStore& s) {
    s.SaveSetting("Paths", "CONPath", "/games");
    Require(s.GetSetting("paths", "conpath") == "/games", "what is saved is read");
  });
  store.Use([](SettingsStore& s) {
    s.SaveSettings("ConWords", {{"NAMEai", "ai"}, {"PARAMSai", "[name]"}});
  });
  store.Use([](SettingsStore& s) {
    s.DeleteSetting("Paths", "CONPath");
    Require(!s.GetSetting("Paths", "CONPath"), "what is deleted is gone");
  });
  return 0;
}
