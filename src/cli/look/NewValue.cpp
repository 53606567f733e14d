#include "cli/look/NewValue.h"

#include "base/RuntimeError.h"
#include "language/Definitions.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

enum class Kind { kNumber, kYesNo, kWord };

const char* NameOf(Kind kind) {
  switch (kind) {
    case Kind::kNumber:
      return "a whole number from -2147483648 to 2147483647";
    case Kind::kYesNo:
      return "YES or NO";
    case Kind::kWord:
      return "one word";
  }
  return "";
}

bool IsNumber(std::string_view text) { return language::NumberOf(text).has_value(); }

bool IsYesNo(std::string_view text) {
  return EqualIgnoringAsciiCase(text, "YES") || EqualIgnoringAsciiCase(text, "NO");
}

/// Read behind a name, the text is the value: all of it, and nothing else.
bool IsWord(const std::string& text) {
  const std::string line = "define A " + text;
  const language::Script script(line);
  const auto definitions = language::Definitions(script);
  if (text == "{" || text == "}") return false;
  return definitions.size() == 1 && definitions.front().IsComplete() &&
         script.Text(definitions.front().value) == text &&
         definitions.front().end == script.Length();
}

/// What the item takes: that of the panel's items is known, any other goes on being what it is.
Kind KindOf(const WantedItem& item, std::string_view old) {
  if (item.panel) return item.panel->entry < 0 ? Kind::kYesNo : Kind::kNumber;
  return IsNumber(old) ? Kind::kNumber : Kind::kWord;
}

bool Fits(const std::string& value, Kind kind) {
  if (kind == Kind::kNumber) return IsNumber(value);
  return kind == Kind::kYesNo ? IsYesNo(value) : IsWord(value);
}

}  // namespace

std::string CheckedValue(const WantedItem& item, std::string_view old, const std::string& value) {
  const Kind kind = KindOf(item, old);
  if (!Fits(value, kind)) {
    throw RuntimeError("\"" + ToUtf8(value) + "\" cannot be the value of " + item.name +
                       ": it takes " + NameOf(kind) + ".");
  }
  return kind == Kind::kYesNo ? ToUpperText(value) : value;
}

void RefuseToRunIntoTheRest(const std::string& bytes, const Splice& splice,
                            const WantedItem& item) {
  if (LeavesTheRest(bytes, splice)) return;
  throw RuntimeError("\"" + ToUtf8(splice.text) + "\" cannot be the value of " + item.name +
                     ": it would run into the comment behind it.");
}

}  // namespace tessel::cli
