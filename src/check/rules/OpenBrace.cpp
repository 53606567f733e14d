#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {

const Rule kOpenBrace = {
    .id = "open-brace",
    .severity = Severity::kError,
    .summary = "a brace is not closed",
    .explanation = "What \"{\" opens ends with \"}\" in the same state or actor.",
    .good = "state bleed\n  ifrnd 128\n  {\n    spawn BLOOD\n  }\nends\n",
    .bad = "state bleed\n  ifrnd 128\n  {\n    spawn BLOOD\nends\n",
    .find = [](const Mod& mod, Findings& findings) {
      FindOpenBlocks(mod, {language::Keyword::kOpenBrace}, "\"{\" is not closed", findings);
    }};

}  // namespace tessel::check
