#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

std::optional<std::int64_t> TextKey(const FileFacts& file, const Statement& entry) {
  return CountingNumber(file.WordText(entry, 0));
}

void FindDoubledTexts(const Mod& mod, Findings& findings) {
  for (const TextLimit& kind : kTextLimits) {
    FindDoubledNumbers(mod, kind.keyword, TextKey, kind.what, 1, findings);
  }
}

}  // namespace

const Rule kTextDoubled = {
    .id = "text-doubled",
    .severity = Severity::kError,
    .summary = "a quote or a title has two lines",
    .explanation = "Each quote, episode and skill has its number for itself.",
    .good = "definequote 4 RUN MODE OFF\ndefinequote 5 RUN MODE ON\n",
    .bad = "definequote 4 RUN MODE OFF\ndefinequote 4 RUN MODE ON\n",
    .find = FindDoubledTexts};

}  // namespace tessel::check
