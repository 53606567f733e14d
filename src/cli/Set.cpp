#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/files/Splices.h"
#include "cli/look/ItemRows.h"
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

/// The value as the file is to have it.
std::string CheckedValue(const WantedItem& item, std::string_view old, const std::string& value) {
  const Kind kind = KindOf(item, old);
  if (!Fits(value, kind)) {
    throw RuntimeError("\"" + ToUtf8(value) + "\" cannot be the value of " + item.name +
                       ": it takes " + NameOf(kind) + ".");
  }
  return kind == Kind::kYesNo ? ToUpperText(value) : value;
}

void RefuseTwice(const std::vector<Splice>& splices, language::Range range,
                 const WantedItem& item) {
  if (std::ranges::find(splices, range, &Splice::range) == splices.end()) return;
  throw RuntimeError(item.name + " is set twice.");
}

void RefuseToRunIntoTheRest(const std::string& bytes, const Splice& splice,
                            const WantedItem& item) {
  if (LeavesTheRest(bytes, splice)) return;
  throw RuntimeError("\"" + ToUtf8(splice.text) + "\" cannot be the value of " + item.name +
                     ": it would run into the comment behind it.");
}

/// What is to be written where; the report says so.
std::vector<Splice> ValuesToWrite(const std::string& bytes, const SetArguments& arguments,
                                  FileReport& report) {
  ValueLook look(bytes);
  std::vector<Splice> splices;
  for (const Assignment& assignment : arguments.values) {
    const WantedItem item = ItemNamed(look, report.file, assignment.item);
    const LookedAt looked = ValueOf(look, report.file, item, arguments.line);
    std::string value = CheckedValue(item, look.TextOf(*looked.value), assignment.value);
    RefuseTwice(splices, *looked.value, item);
    report.rows.push_back(ChangeRow(look, item, looked, value));
    splices.push_back({*looked.value, std::move(value)});
    RefuseToRunIntoTheRest(bytes, splices.back(), item);
  }
  return splices;
}

}  // namespace

bool SetSettings(const SetArguments& arguments) {
  const auto set = [&](const std::string& bytes, FileReport& report) {
    std::vector<Splice> splices = ValuesToWrite(bytes, arguments, report);
    report.facts.emplace_back(kChanged, CountChanges(report.rows));
    return Spliced(bytes, std::move(splices));
  };
  return EditFiles(arguments, {.command = "set", .columns = kChangeColumns}, set,
                   [](const FileReport& report) { return ChangesAsText(report.rows); });
}

}  // namespace tessel::cli
