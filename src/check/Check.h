// Checks the files of a mod.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "check/facts/Finding.h"
#include "check/facts/Mod.h"
#include "check/facts/Rule.h"

namespace tessel::check {

/// Which rules are applied.
struct Options {
  std::vector<const Rule*> rules = {};  ///< empty: all
  std::vector<const Rule*> off = {};    ///< but not these
};

/// What the rules find in the files, which are one mod: file by file, in the order of the text.
/// What comments switch off is left out. Any bytes can be checked.
Findings Check(std::span<const Source> sources, const Knowledge& knowledge,
               const Options& options = {});

/// The files that an example of a rule consists of.
std::vector<Source> ExampleFiles(std::string_view example);

}  // namespace tessel::check
