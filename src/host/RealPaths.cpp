#include "host/RealPaths.h"

#include "base/RuntimeError.h"
#include "posix/Posix.h"
#include "posix/Spellings.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr const char* kSection = "HostPaths";
constexpr std::size_t kMost = 50;

}  // namespace

void RealPaths::Watch(DocumentList& documents) {
  const auto remember = [this](const Document& document) { Remember(document.Path()); };
  subscriptions_ = {documents.Loaded.Connect(remember), documents.Saved.Connect(remember)};
}

void RealPaths::Remember(const std::string& path) {
  if (path.empty() || !posix::StatusOfLink(path)) return;  // opened by another spelling
  try {
    const std::string key = ToUpperText(path);
    if (settings_.GetSetting(kSection, key) == path) return;
    settings_.SaveSetting(kSection, key, path);
    const auto all = settings_.GetAllSettings(kSection);
    if (all.size() > kMost) settings_.DeleteSetting(kSection, all.front().first);
  } catch (const RuntimeError&) {  // then it is asked about
  }
}

std::optional<std::string> RealPaths::Remembered(const std::string& key) const try {
  const auto real = settings_.GetSetting(kSection, key);
  return real && posix::StatusOfLink(*real) ? real : std::nullopt;
} catch (const RuntimeError&) {
  return std::nullopt;
}

std::vector<std::string> RealPaths::Candidates(const std::string& path) const {
  const std::string key = ToUpperText(path);
  const bool isThere = posix::StatusOfLink(path).has_value();
  if (isThere && path != key) return {path};
  const auto real = Remembered(key);
  if (isThere) return real && *real != path ? std::vector{*real, path} : std::vector{path};
  return real ? std::vector{*real} : posix::SpellingsOf(path);
}

}  // namespace tessel
