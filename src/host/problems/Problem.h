// What the check has found in an open document.
#pragma once

#include "check/facts/Finding.h"
#include "check/facts/Rule.h"
#include "surface/Document.h"

namespace tessel {

struct Problem {
  Slot slot{};
  Position line = 1;       ///< in the text that was checked, from 1
  check::Finding finding;  ///< its places are those of the text that was checked

  check::Severity Severity() const { return finding.rule->severity; }
};

}  // namespace tessel
