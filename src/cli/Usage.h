// What the command line says about its own misuse.
#pragma once

#include <string>

namespace tessel::cli {

/// Arguments that cannot be used.
struct Misuse {
  std::string command;        ///< as far as it was understood: "tessel words set"
  std::string reason;         ///< a sentence of the parser's own
  std::string unexpected;     ///< the first word that has no place; empty: none
  bool miscounted = false;    ///< a word is missing or there is one too many
  bool wantsCommand = false;  ///< a subcommand is what can follow
};

/// The sentence for it, and where to read on.
std::string UsageMessage(const Misuse& misuse);

}  // namespace tessel::cli
