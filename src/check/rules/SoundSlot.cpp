#include <unordered_map>

#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "language/Definitions.h"

namespace tessel::check {
namespace {

std::optional<std::int32_t> SlotOf(const Mod& mod, std::string_view name) {
  const auto define = mod.DefineOf(name);
  if (!define) return std::nullopt;
  return language::NumberOf(mod.Files()[define->file].WordText(*define->statement, 1));
}

void FindSoundSlots(const Mod& mod, Findings& findings) {
  std::unordered_map<std::int32_t, std::string_view> names;
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& sound : file.Statements(language::Keyword::kDefineSound)) {
      const std::string_view name = file.WordText(sound, 0);
      const auto slot = SlotOf(mod, name);
      if (!slot) continue;
      const auto [first, isNew] = names.try_emplace(*slot, name);
      if (isNew || language::SameName(first->second, name)) continue;
      findings.push_back({.file = i,
                          .range = file.Word(sound, 0).AsRange(),
                          .text = Quoted(name) + " has slot " + std::to_string(*slot) +
                                  ", which is that of " + Quoted(first->second)});
    }
  }
}

}  // namespace

const Rule kSoundSlot = {
    .id = "sound-slot",
    .severity = Severity::kError,
    .summary = "two sounds have one slot",
    .explanation =
        "The number that is defined for the name of a sound is its slot. No two sounds "
        "have one slot.",
    .good =
        "define FIST_SWING 0\ndefine FIST_HIT 1\n"
        "definesound FIST_SWING fswing.voc -64 64 0 0 0\n"
        "definesound FIST_HIT fhit01.voc -64 64 0 0 0\n",
    .bad =
        "define FIST_SWING 0\ndefine FIST_HIT 0\n"
        "definesound FIST_SWING fswing.voc -64 64 0 0 0\n"
        "definesound FIST_HIT fhit01.voc -64 64 0 0 0\n",
    .find = FindSoundSlots};

}  // namespace tessel::check
