#include "cli/Usage.h"

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
  return misuse.wantsCommand ? "there is no subcommand \"" + word + "\""
                             : "\"" + word + "\" is one argument too many";
}

}  // namespace

std::string UsageMessage(const Misuse& misuse) {
  return "tessel: " + ForTerminal(Reason(misuse)) + "\n\"" + misuse.command +
         " --help\" tells more.\n";
}

}  // namespace tessel::cli
