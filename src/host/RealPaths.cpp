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

std::vector<std::string> RealPaths::Candidates(const std::string& path) const {
  if (posix::StatusOfLink(path)) return {path};
  try {
    const auto real = settings_.GetSetting(kSection, ToUpperText(path));
    if (real && posix::StatusOfLink(*real)) return {*real};
  } catch (const RuntimeError&) {
  }
  return posix::SpellingsOf(path);
}

}  // namespace tessel
