#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindLongTexts(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const TextLimit& kind : kTextLimits) {
      for (const Statement& entry : file.Statements(kind.keyword)) {
        const language::Range text = WordsFrom(file, entry, 1);
        if (text.Length() <= kind.most) continue;
        findings.push_back({.file = i,
                            .range = text,
                            .text = "this " + std::string(kind.what) + " has " +
                                    std::to_string(text.Length()) + " characters; at most " +
                                    std::to_string(kind.most) + " are allowed"});
      }
    }
  }
}

}  // namespace

const Rule kTextLength = {
    .id = "text-length",
    .severity = Severity::kWarning,
    .summary = "a quote or a title is too long",
    .explanation =
        "A quote has at most 64 characters, the title of an episode or a skill at most "
        "32.",
    .good = "defineskillname 0 PIECE OF CAKE\n",
    .bad = "defineskillname 0 A PIECE OF CAKE FOR ALL WHO LIKE CAKE\n",
    .find = FindLongTexts};

}  // namespace tessel::check
