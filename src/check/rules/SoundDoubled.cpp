#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {

const Rule kSoundDoubled = {
    .id = "sound-doubled",
    .severity = Severity::kError,
    .summary = "a sound has two lines that differ",
    .explanation =
        "Each name has one sound, whatever its case. A line that says the same again is let "
        "pass: the conversion to 1.4/1.5 writes one.",
    .good =
        "definesound FIST_SWING fswing.voc -64 64 0 0 0\n"
        "definesound FIST_HIT fhit01.voc -64 64 0 0 0\n",
    .bad =
        "definesound FIST_HIT fswing.voc -64 64 0 0 0\n"
        "definesound FIST_HIT fhit01.voc -64 64 0 0 0\n",
    .find = [](const Mod& mod, Findings& findings) {
      FindDoubledNames(mod, language::Keyword::kDefineSound, "sound", findings);
    }};

}  // namespace tessel::check
