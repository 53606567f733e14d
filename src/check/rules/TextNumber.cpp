#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindTextNumbers(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const TextLimit& kind : kTextLimits) {
      for (const Statement& entry : file.Statements(kind.keyword)) {
        if (CountingNumber(file.WordText(entry, 0))) continue;
        findings.push_back({.file = i,
                            .range = entry.range.AsRange(),
                            .text = "this " + std::string(kind.what) +
                                    " has no number from 0 up behind its keyword"});
      }
    }
  }
}

}  // namespace

const Rule kTextNumber = {
    .id = "text-number",
    .severity = Severity::kError,
    .summary = "a quote or a title has no number",
    .explanation =
        "Behind \"definequote\", \"definevolumename\" and \"defineskillname\" stand a "
        "number from 0 up and the text.",
    .good = "definequote 5 RUN MODE ON\n",
    .bad = "definequote RUN MODE ON\n",
    .find = FindTextNumbers};

}  // namespace tessel::check
