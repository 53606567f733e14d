#include "cli/Usage.h"

#include "cli/report/Suggestion.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

std::string Reason(const Misuse& misuse) {
  const std::string& word = misuse.unexpected;
  if (word.empty() || !misuse.miscounted) return misuse.reason;
  if (word.starts_with('-')) {
    return "there is no option \"" + word + "\" here; a file of that name is written \"./" + word +
           "\"";
  }
  return !misuse.commands.empty() ? "there is no subcommand \"" + word + "\""
                                  : "\"" + word + "\" is one argument too many";
}

std::string Guess(const Misuse& misuse) {
  const std::string& word = misuse.unexpected;
  if (!misuse.miscounted) return {};
  const bool isOption = word.starts_with('-');
  const std::string guess = DidYouMean(isOption ? word.substr(0, word.find('=')) : word,
                                       isOption ? misuse.options : misuse.commands);
  return guess.empty() ? guess : guess + "\n";
}

}  // namespace

std::string UsageMessage(const Misuse& misuse) {
  return "tessel: " + ForTerminal(Reason(misuse)) + "\n" + Guess(misuse) + "Run '" +
         misuse.command + " --help' for details.\n";
}

}  // namespace tessel::cli
