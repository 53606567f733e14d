// All values that a file says: of defines, levels, quotes, titles and sounds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "language/Range.h"

namespace tessel::cli {

enum class ValueKind : std::uint8_t { kDefine, kLevel, kQuote, kVolume, kSkill, kSound };

/// How a kind is called in reports, and the table that it has in a page of values.
struct ValueKindNames {
  ValueKind kind;
  std::string_view word, section;
  std::string_view onlyField;  ///< of a kind with one field; else empty
};
inline constexpr std::array<ValueKindNames, 6> kValueKinds = {
    {{ValueKind::kDefine, "define", "values", "value"},
     {ValueKind::kLevel, "level", "levels", ""},
     {ValueKind::kQuote, "quote", "quotes", "text"},
     {ValueKind::kVolume, "volume", "volumes", "text"},
     {ValueKind::kSkill, "skill", "skills", "text"},
     {ValueKind::kSound, "sound", "sounds", ""}}};
const ValueKindNames& NamesOf(ValueKind kind);

/// What a value is called: the same in every file. The name is single-byte text: of a level "0 7",
/// of a quote its number.
struct ValueName {
  ValueKind kind = ValueKind::kDefine;
  std::string name;
  std::string field;
};
/// Equal for the same value: names are the same whatever their case.
std::string KeyOf(const ValueName& name);
/// "TROOPSTRENGTH", "title of level 0 7", in UTF-8.
std::string ShownName(const ValueName& name);

struct FileValue {
  ValueName name;
  language::Range range;      ///< its text
  language::Range statement;  ///< what it belongs to, from the keyword to the last word
};

/// In the order of the text. A statement that is not whole has none.
std::vector<FileValue> ReadValues(std::string_view bytes);

}  // namespace tessel::cli
