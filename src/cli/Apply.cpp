#include <algorithm>
#include <unordered_map>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/files/Input.h"
#include "cli/files/Splices.h"
#include "cli/look/ItemRows.h"
#include "cli/look/NewValue.h"
#include "cli/values/ValuePage.h"
#include "language/Script.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using language::Range;

/// Where a value is to be written, and what stands there.
struct Target {
  Splice splice;
  std::int64_t line = 0;
};

/// Finds the values of one file by their names.
class AppliedFile {
 public:
  AppliedFile(const std::string& bytes, std::string name)
      : bytes_(bytes), name_(std::move(name)), script_(bytes), look_(bytes) {
    for (FileValue& value : ReadValues(bytes)) {
      values_[KeyOf(value.name)].push_back(std::move(value));
    }
  }

  bool Has(const ValueName& name) {
    if (values_.contains(KeyOf(name))) return true;
    const auto item =
        name.kind == ValueKind::kDefine ? look_.Find(ToUtf8(name.name)) : std::nullopt;
    return item && (look_.LookAt(*item).value.has_value() ||
                    values_.contains(KeyOf({ValueKind::kDefine, item->define, "value"})));
  }

  /// A RuntimeError where the file does not have the value in one safe place, or cannot hold it.
  Target TargetOf(const PageValue& value) {
    return value.name.kind == ValueKind::kDefine ? DefineTarget(value) : OtherTarget(value);
  }

  std::string TextAt(Range range) const { return std::string(script_.Text(range)); }

 private:
  /// As "set" does it.
  Target DefineTarget(const PageValue& value) {
    const WantedItem item = ItemNamed(look_, name_, ToUtf8(value.name.name));
    const LookedAt looked = ValueOf(look_, name_, item, std::nullopt);
    Splice splice = {*looked.value, CheckedValue(item, look_.TextOf(*looked.value), value.text)};
    RefuseToRunIntoTheRest(bytes_, splice, item);
    return {std::move(splice), looked.line.value_or(0)};
  }

  Target OtherTarget(const PageValue& value) const {
    const auto found = values_.find(KeyOf(value.name));
    if (found == values_.end()) {
      throw RuntimeError(name_ + " has no " + ShownName(value.name) + ".");
    }
    const std::vector<FileValue>& places = found->second;
    if (places.size() > 1) {
      throw RuntimeError(name_ + " has " + ShownName(value.name) + " in the lines " +
                         std::to_string(LineOf(places[0])) + " and " +
                         std::to_string(LineOf(places[1])) + ".");
    }
    Splice splice = {places.front().range, value.text};
    if (!SaysJustThat(places.front(), splice)) {
      throw RuntimeError("\"" + ToUtf8(value.text) + "\" cannot be the " + ShownName(value.name) +
                         " of " + name_ + ".");
    }
    return {std::move(splice), LineOf(places.front())};
  }

  std::int64_t LineOf(const FileValue& value) const {
    return script_.PlaceOf(value.statement.begin).line;
  }

  /// Read again, the statement has the new text there and all else as before.
  bool SaysJustThat(const FileValue& value, const Splice& splice) const {
    const Range statement = value.statement;
    const std::string before = TextAt(statement);
    const Range within = {value.range.begin - statement.begin, value.range.end - statement.begin};
    const std::string after = Spliced(before, {{within, splice.text}});
    const std::vector<FileValue> old = ReadValues(before), fresh = ReadValues(after);
    if (old.size() != fresh.size()) return false;
    for (std::size_t i = 0; i < old.size(); ++i) {
      const bool isIt = old[i].range == within;
      const std::string_view wanted =
          isIt ? std::string_view(splice.text) : language::Slice(before, old[i].range);
      if (KeyOf(old[i].name) != KeyOf(fresh[i].name) ||
          language::Slice(after, fresh[i].range) != wanted) {
        return false;
      }
    }
    return fresh.front().statement.end == std::ssize(after) && LeavesTheRest(bytes_, splice);
  }

  const std::string& bytes_;
  std::string name_;
  language::Script script_;
  ValueLook look_;
  std::unordered_map<std::string, std::vector<FileValue>> values_;
};

std::string ChangedBytes(const std::string& bytes, const std::vector<PageValue>& page,
                         bool skipMissing, FileReport& report) {
  AppliedFile file(bytes, report.file);
  std::vector<Splice> splices;
  std::int64_t changed = 0, missing = 0;
  for (const PageValue& value : page) {
    if (skipMissing && !file.Has(value.name)) {
      ++missing;
      continue;
    }
    Target target = file.TargetOf(value);
    if (std::ranges::find(splices, target.splice.range, &Splice::range) != splices.end()) {
      throw RuntimeError(ShownName(value.name) + " is set twice.");
    }
    const std::string old = file.TextAt(target.splice.range);
    if (old != target.splice.text) ++changed;
    report.rows.push_back({std::string(NamesOf(value.name.kind).word), ToUtf8(value.name.name),
                           value.name.field, target.line, ToUtf8(old), ToUtf8(target.splice.text)});
    splices.push_back(std::move(target.splice));
  }
  report.facts.emplace_back(kChanged, changed);
  if (missing != 0) {
    report.notes.push_back("it does not have " + std::to_string(missing) + " of the values.");
  }
  return Spliced(bytes, std::move(splices));
}

std::string AppliedAsText(const FileReport& report) {
  std::string text;
  for (const Row& row : report.rows) {
    const auto cell = [&](std::size_t i) { return ForTerminal(std::get<std::string>(row[i])); };
    text += cell(0) + " " + cell(1) + " " + cell(2) + ": " + cell(4) + " -> " + cell(5) + '\n';
  }
  return text;
}

}  // namespace

bool ApplyValues(const ApplyArguments& arguments) {
  const std::vector<PageValue> page = ParsePage(ReadInput(arguments.page), arguments.page);
  const auto apply = [&](const std::string& bytes, FileReport& report) {
    return ChangedBytes(bytes, page, arguments.skipMissing, report);
  };
  return EditFiles(arguments,
                   {.command = "apply", .columns = {"kind", "name", "field", "line", "old", "new"}},
                   apply, AppliedAsText);
}

}  // namespace tessel::cli
