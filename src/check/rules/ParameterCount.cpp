#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

std::string CountText(const ParameterCount& count) {
  if (count.most == 0) return "no parameters";
  const std::string number = std::to_string(count.least);
  return (count.most == ParameterCount::kAny ? "at least " + number : number) +
         (count.least == 1 ? " parameter" : " parameters");
}

void FindParameterCounts(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const WordFault& fault : file.WordFaults()) {
      if (fault.problem == WordProblem::kUnknown) continue;
      const std::string takes =
          Quoted(fault.command->word) + " takes " + CountText(fault.command->parameters);
      findings.push_back(
          {.file = i,
           .range = fault.word.AsRange(),
           .text = fault.problem == WordProblem::kTooFew
                       ? takes + "; here are fewer"
                       : takes + "; " + Quoted(file.Text(fault.word)) + " is one too many"});
    }
  }
}

}  // namespace

const Rule kParameterCount = {
    .id = "parameter-count",
    .severity = Severity::kError,
    .summary = "a command has too few or too many parameters",
    .explanation =
        "The list of script words tells the parameters of each in brackets. They stand "
        "behind the word in its line; those that are still missing may follow in the "
        "next.",
    .good = "state bleed\n  guts JIBS 8\nends\n",
    .bad = "state bleed\n  guts JIBS\nends\n",
    .find = FindParameterCounts};

}  // namespace tessel::check
