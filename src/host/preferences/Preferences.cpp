#include "host/preferences/Preferences.h"

#include <QSettings>
#include <algorithm>
#include <charconv>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

constexpr const char* kWishSection = "HostPreferences";

struct WishRow {
  Wish wish;
  const char* key;
  const char* byDefault;
  const char* earlierKey = nullptr;  // where earlier versions kept it, in a file of their own
};

constexpr WishRow kWishes[] = {
    {Wish::kReopen, "Reopen", "0", "session/reopen"},
    {Wish::kAutomation, "Automation", "0", "automation/wanted"},
    {Wish::kWordWrap, "WordWrap", "0"},
    {Wish::kShowBlanks, "ShowBlanks", "0"},
    {Wish::kButtonWords, "ButtonWords", "0"},
    {Wish::kLiveColours, "LiveColours", "1"},
    {Wish::kRuler, "Ruler", "0"},
    {Wish::kCompletion, "Completion", "0"},
    {Wish::kIndentation, "Indentation", "1"},
    {Wish::kZoom, "Zoom", "0"},
    {Wish::kTabWidth, "TabWidth", "8"},
    {Wish::kFont, "Font", ""},
    {Wish::kFontSize, "FontSize", "0"},
    {Wish::kScrollMarks, "ScrollMarks", "1"},
    {Wish::kPlaces, "Places", ""},
    {Wish::kTheme, "Theme", "0"},
    {Wish::kBackups, "Backups", "20"},
    {Wish::kHint, "Hint", "1"},
    {Wish::kLiveCheck, "LiveCheck", "1"},
};

const WishRow& RowOf(Wish wish) { return *std::ranges::find(kWishes, wish, &WishRow::wish); }

std::optional<int> NumberIn(const std::string& text) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stopped == end ? std::optional(number) : std::nullopt;
}

std::optional<std::string> Stored(SettingsStore& settings, const char* key) {
  try {
    return settings.GetSetting(kWishSection, key);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

void Store(SettingsStore& settings, const char* key, const std::string& value) {
  try {
    settings.SaveSetting(kWishSection, key, value);
  } catch (const RuntimeError&) {  // the store has said so itself
  }
}

}  // namespace

Preferences::Preferences(SettingsStore& settings) : settings_(settings) {
  QSettings earlier;
  for (const WishRow& row : kWishes) {
    if (row.earlierKey == nullptr || !earlier.contains(row.earlierKey)) continue;
    if (!Stored(settings_, row.key)) {
      Store(settings_, row.key, earlier.value(row.earlierKey).toBool() ? "1" : "0");
    }
    earlier.remove(row.earlierKey);
  }
}

std::string Preferences::Text(Wish wish) const {
  const WishRow& row = RowOf(wish);
  return Stored(settings_, row.key).value_or(row.byDefault);
}

int Preferences::Number(Wish wish) const {
  return NumberIn(Text(wish)).value_or(NumberIn(RowOf(wish).byDefault).value_or(0));
}

void Preferences::Set(Wish wish, const std::string& value) {
  if (Text(wish) == value) return;
  Store(settings_, RowOf(wish).key, value);
  Changed.Raise(wish);
}

}  // namespace tessel
