// What the command line says about its own misuse.
#pragma once

#include <string>
#include <vector>

namespace tessel::cli {

/// Arguments that cannot be used.
struct Misuse {
  std::string command;                ///< as far as it was understood: "tessel words set"
  std::string reason;                 ///< a sentence of the parser's own
  std::string unexpected;             ///< the first word that has no place; empty: none
  bool miscounted = false;            ///< a word is missing or there is one too many
  std::vector<std::string> commands;  ///< what can follow, where a subcommand has to
  std::vector<std::string> options;   ///< those that there are, "--help"
};

/// The sentence for it, what may have been meant, and where to read on.
std::string UsageMessage(const Misuse& misuse);

}  // namespace tessel::cli
