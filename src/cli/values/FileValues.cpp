#include "cli/values/FileValues.h"

#include <algorithm>

#include "language/Definitions.h"
#include "language/Entries.h"
#include "language/Levels.h"
#include "language/Script.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

using language::Range;
using language::Script;

struct LevelField {
  const char* name;
  Range language::Level::*range;
};
constexpr std::array<LevelField, 4> kLevelValues = {{{"map", &language::Level::map},
                                                     {"par", &language::Level::par},
                                                     {"record", &language::Level::record},
                                                     {"title", &language::Level::title}}};

constexpr std::array<const char*, 5> kSoundNumbers = {"lowest", "highest", "priority", "kind",
                                                      "volume"};

struct TextKind {
  language::Keyword keyword;
  ValueKind kind;
};
constexpr std::array<TextKind, 3> kTextKinds = {
    {{language::Keyword::kDefineQuote, ValueKind::kQuote},
     {language::Keyword::kDefineVolumeName, ValueKind::kVolume},
     {language::Keyword::kDefineSkillName, ValueKind::kSkill}}};

void AddDefines(const Script& script, std::vector<FileValue>& values) {
  for (const language::Definition& definition : language::Definitions(script)) {
    const std::string_view value = script.Text(definition.value);
    if (!definition.IsComplete() || value == "{" || value == "}") continue;
    values.push_back({{ValueKind::kDefine, std::string(script.Text(definition.name)), "value"},
                      definition.value,
                      {definition.keyword.begin, definition.value.end}});
  }
}

void AddLevels(const Script& script, std::vector<FileValue>& values) {
  for (const language::Level& level : language::Levels(script)) {
    if (!level.IsComplete()) continue;
    const std::string name =
        std::to_string(*level.episodeNumber) + " " + std::to_string(*level.levelNumber);
    for (const LevelField& field : kLevelValues) {
      values.push_back({{ValueKind::kLevel, name, field.name},
                        level.*field.range,
                        {level.keyword.begin, level.title.end}});
    }
  }
}

void AddTexts(const Script& script, const TextKind& kind, std::vector<FileValue>& values) {
  for (const language::NumberedText& entry : language::NumberedTexts(script, kind.keyword)) {
    if (!entry.IsComplete()) continue;
    values.push_back({{kind.kind, std::to_string(*entry.value), "text"}, entry.text, entry.range});
  }
}

void AddSounds(const Script& script, std::vector<FileValue>& values) {
  for (const language::Sound& sound : language::Sounds(script)) {
    if (!sound.IsComplete()) continue;
    const std::string name(script.Text(sound.name));
    values.push_back({{ValueKind::kSound, name, "file"}, sound.file, sound.range});
    for (std::size_t i = 0; i < kSoundNumbers.size(); ++i) {
      values.push_back(
          {{ValueKind::kSound, name, kSoundNumbers[i]}, sound.numbers[i], sound.range});
    }
  }
}

}  // namespace

const ValueKindNames& NamesOf(ValueKind kind) {
  return kValueKinds[static_cast<std::size_t>(kind)];
}

std::string KeyOf(const ValueName& name) {
  return std::string(NamesOf(name.kind).word) + '\n' + ToLowerText(name.name) + '\n' + name.field;
}

std::string ShownName(const ValueName& name) {
  const ValueKindNames& names = NamesOf(name.kind);
  const std::string shown = ToUtf8(name.name);
  if (name.kind == ValueKind::kDefine) return shown;
  const std::string what = std::string(names.word) + " " + shown;
  return names.onlyField.empty() ? name.field + " of " + what : what;
}

std::vector<FileValue> ReadValues(std::string_view bytes) {
  const Script script(bytes);
  std::vector<FileValue> values;
  AddDefines(script, values);
  AddLevels(script, values);
  for (const TextKind& kind : kTextKinds) AddTexts(script, kind, values);
  AddSounds(script, values);
  std::ranges::stable_sort(values, {}, [](const FileValue& value) { return value.range.begin; });
  return values;
}

}  // namespace tessel::cli
