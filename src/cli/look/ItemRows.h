// Values as rows of a report.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/look/ValueLook.h"
#include "cli/report/Report.h"

namespace tessel::cli {

/// The columns of "get" and "settings": an item and its value, or why it has none.
extern const std::vector<std::string> kValueColumns;
Row ValueRow(const ValueLook& look, const WantedItem& item, const LookedAt& looked);

/// The columns of "set" and "randomize": an item, its old value and the new one; a problem says why
/// it was skipped.
extern const std::vector<std::string> kChangeColumns;
Row ChangeRow(const ValueLook& look, const WantedItem& item, const LookedAt& looked,
              const std::optional<std::string>& fresh);

/// How many rows of the latter have another new value.
std::int64_t CountChanges(const std::vector<Row>& rows);
/// Those rows as lines: "Armor     0 ->      50", or what was skipped and why.
std::string ChangesAsText(const std::vector<Row>& rows);

/// The items of one section of the panel, "All" or "" for all of them.
std::vector<WantedItem> ItemsOf(const std::string& section);

/// The item of that name. A RuntimeError with suggestions when the file and the panel have none.
WantedItem ItemNamed(const ValueLook& look, const std::string& file, const std::string& name);
/// The value of an item, in that line if one is given. A RuntimeError says why there is none.
LookedAt ValueOf(ValueLook& look, const std::string& file, const WantedItem& item,
                 const std::optional<std::int64_t>& line);

}  // namespace tessel::cli
