#include "cli/values/ValueDifference.h"

#include <algorithm>
#include <unordered_map>

namespace tessel::cli {
namespace {

/// The values of one file by their keys.
class ValueTable {
 public:
  ValueTable(std::string_view bytes, std::vector<std::string>& doubled) : bytes_(bytes) {
    for (FileValue& value : ReadValues(bytes)) {
      const auto [place, isNew] = places_.try_emplace(KeyOf(value.name), values_.size());
      if (isNew) {
        values_.push_back(std::move(value));
      } else {
        doubled.push_back(ShownName(value.name));
      }
    }
  }

  const std::vector<FileValue>& Values() const { return values_; }
  std::optional<std::string> TextOf(const ValueName& name) const {
    const auto place = places_.find(KeyOf(name));
    if (place == places_.end()) return std::nullopt;
    return std::string(language::Slice(bytes_, values_[place->second].range));
  }

 private:
  std::string_view bytes_;
  std::vector<FileValue> values_;
  std::unordered_map<std::string, std::size_t> places_;
};

}  // namespace

ValueDifference DifferenceOf(std::string_view before, std::string_view after) {
  ValueDifference difference;
  const ValueTable old(before, difference.doubled);
  const ValueTable fresh(after, difference.doubled);
  for (const FileValue& value : old.Values()) {
    ValueChange change = {value.name, old.TextOf(value.name), fresh.TextOf(value.name)};
    if (change.before != change.after) difference.changes.push_back(std::move(change));
  }
  for (const FileValue& value : fresh.Values()) {
    if (old.TextOf(value.name)) continue;
    difference.changes.push_back({value.name, std::nullopt, fresh.TextOf(value.name)});
  }
  return difference;
}

}  // namespace tessel::cli
