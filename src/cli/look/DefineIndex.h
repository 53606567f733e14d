// Finds the define lines of a name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "language/Definitions.h"
#include "language/Script.h"

namespace tessel::cli {

/// Where each name of a text is defined: made once, then asked often. It keeps the place of each
/// define line and no more, as a text may have millions. The script outlives it, unchanged.
class DefineIndex {
 public:
  explicit DefineIndex(const language::Script& script);

  /// All define lines of that name, whatever its case, in the order of the text.
  std::vector<language::Definition> Of(std::string_view name) const;
  /// All whose name begins so. This one reads every name.
  std::vector<language::Definition> Beginning(std::string_view name) const;
  /// Every name, in UTF-8, once, in byte order.
  std::vector<std::string> Names() const;

 private:
  struct Entry {
    std::uint64_t hash = 0;  // of the name in lower case
    Position begin = 0;      // of the define line's keyword
  };

  language::Definition At(const Entry& entry) const;

  const language::Script& script_;
  std::vector<Entry> entries_;  // by hash, then by place
};

}  // namespace tessel::cli
