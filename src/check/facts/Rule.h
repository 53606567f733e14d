// A rule: what is wrong, why, and how it is found.
#pragma once

#include <string_view>

#include "check/facts/Finding.h"
#include "check/facts/Mod.h"

namespace tessel::check {

struct Rule {
  std::string_view id;  ///< small letters and hyphens
  Severity severity = Severity::kError;
  std::string_view summary;      ///< one line
  std::string_view explanation;  ///< a few sentences
  /// Texts without and with the fault. Several files stand behind lines "==> NAME <==".
  std::string_view good, bad;
  /// Adds what it finds, without the rule; the order does not matter.
  void (*find)(const Mod& mod, Findings& findings) = nullptr;
};

}  // namespace tessel::check
