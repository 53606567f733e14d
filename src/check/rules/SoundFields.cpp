#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr std::size_t kSoundWords = 7;

void FindSoundFields(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& sound : file.Statements(language::Keyword::kDefineSound)) {
      if (sound.words == kSoundWords) continue;
      const bool tooMany = sound.words > kSoundWords;
      findings.push_back(
          {.file = i,
           .range = tooMany ? WordsFrom(file, sound, kSoundWords) : sound.range.AsRange(),
           .text = tooMany ? "a sound has a name, a file and five numbers; this is too much"
                           : "a sound has a name, a file and five numbers; here are " +
                                 std::to_string(sound.words) + " words"});
    }
  }
}

}  // namespace

const Rule kSoundFields = {
    .id = "sound-fields",
    .severity = Severity::kError,
    .summary = "a sound has too few or too many fields",
    .explanation =
        "A sound line is the keyword, name, file, lowest and highest pitch, priority, "
        "kind and volume adjustment.",
    .good = "definesound FIST_HIT fhit01.voc -64 64 0 0 0\n",
    .bad = "definesound FIST_HIT fhit01.voc -64 64 0 0\n",
    .find = FindSoundFields};

}  // namespace tessel::check
