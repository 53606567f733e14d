#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {

const Rule kOpenActor = {
    .id = "open-actor",
    .severity = Severity::kError,
    .summary = "an actor has no \"enda\"",
    .explanation =
        "An actor goes from \"actor\" or \"useractor\" to \"enda\", in front of the next one.",
    .good = "actor TROOPER 30\n  fall\nenda\n\nactor SHARK 35\nenda\n",
    .bad = "actor TROOPER 30\n  fall\n\nactor SHARK 35\nenda\n",
    .find = [](const Mod& mod, Findings& findings) {
      FindOpenBlocks(mod, {language::Keyword::kActor, language::Keyword::kUserActor},
                     "this actor is not closed by \"enda\"", findings);
    }};

}  // namespace tessel::check
